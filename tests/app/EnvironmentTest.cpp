// The program where little is as usual: it makes the same movie, or says in one sentence why not.
#include "tests/app/Program.h"
#include "tests/app/WakeFlight.h"
#include "tests/support/TempFolder.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fs = std::filesystem;
using namespace corvane::test;
using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

/// Runs the program as another program tells it to.
Surroundings through(std::vector<std::string> wrapper) {
    return {.wrapper = std::move(wrapper)};
}

class Environment : public testing::Test {
protected:
    std::vector<std::string> run(const std::string& movie) const {
        return {exampleFile("wake/body.vtp"),
                "--keyframes",
                keyFrames,
                "--output",
                movie,
                "--size",
                "64x36"};
    }

    /// What comes out where everything is as usual.
    std::string usualMovie() const {
        const std::string movie = folder.file("usual.avi");
        EXPECT_EQ(runProgram(run(movie)).exitCode, 0);
        return readFile(movie);
    }

    ProgramResult expectMovie(const Surroundings& surroundings) const {
        const std::string movie = folder.file("movie.avi");
        const ProgramResult result = runProgram(run(movie), surroundings);
        EXPECT_EQ(result.exitCode, 0) << result.errors;
        EXPECT_EQ(result.output, "");
        EXPECT_FALSE(folder.hasParts());
        EXPECT_TRUE(readFile(movie) == usual);
        fs::remove(movie);
        return result;
    }

    /// The last line; exit code 1.
    std::string complaintAbout(const std::vector<std::string>& arguments,
                               const Surroundings& surroundings = {}) const {
        const auto before = folder.names();
        std::vector<std::string> quiet = arguments;
        quiet.emplace_back("--quiet");
        const ProgramResult result = runProgram(quiet, surroundings);
        EXPECT_EQ(result.exitCode, 1) << result.errors;
        EXPECT_EQ(std::count(result.errors.begin(), result.errors.end(), '\n'), 1) << result.errors;
        EXPECT_THAT(result.errors, StartsWith("corvane: "));
        EXPECT_EQ(folder.names(), before);
        return result.errors;
    }

    const TempFolder folder;
    const std::string keyFrames =
        folder.write("flight.keyframe", StandingFlight{.frames = 3}.keyFrameFile());
    const std::string usual = usualMovie();
};

TEST_F(Environment, isEmpty) {
    expectMovie(through({"env", "-i"}));
}

TEST_F(Environment, hasNoHomeOrOneThatCannotBeWrittenTo) {
    expectMovie(through({"env", "-u", "HOME"}));
    expectMovie(through({"env", "HOME=/proc", "XDG_CACHE_HOME=/proc", "XDG_CONFIG_HOME=/proc"}));
}

TEST_F(Environment, hasNoFolderForTemporaryFiles) {
    expectMovie(through({"env", "TMPDIR=" + folder.file("none")}));
}

// A comma where the language of the user has one, or a language that nobody installed.
TEST_F(Environment, speaksAnotherLanguage) {
    for (const char* language : {"LC_ALL=de_DE.UTF-8", "LC_ALL=xx_XX", "LC_ALL=C"}) {
        expectMovie(through({"env", language}));
    }
    // Installed for this run, where that can be done.
    expectMovie(inShell("localedef -i de_DE -f UTF-8 '" + folder.file("de_DE.UTF-8") +
                        "' 2>/dev/null; LOCPATH='" + folder.path().string() +
                        "' LC_ALL=de_DE.UTF-8 exec \"$@\""));
}

TEST_F(Environment, hasStandardFilesThatAreClosed) {
    for (const char* closing : {"<&-", ">&-", "2>&-", "<&- >&- 2>&-"}) {
        SCOPED_TRACE(closing);
        expectMovie(inShell(std::string("exec \"$@\" ") + closing));
    }
}

TEST_F(Environment, hasNobodyWhoReads) {
    const std::string movie = folder.file("movie.avi");
    Program program(run(movie));
    program.closeErrors();
    EXPECT_EQ(program.finish().exitCode, 0);
    EXPECT_TRUE(readFile(movie) == usual);
    EXPECT_FALSE(folder.hasParts());
}

TEST_F(Environment, isAFolderThatIsGone) {
    const std::string gone = folder.file("gone");
    fs::create_directory(gone);
    const Surroundings inGone = inShell("cd '" + gone + "' && rmdir '" + gone + "' && exec \"$@\"");
    expectMovie(inGone);
    fs::create_directory(gone);
    const ProgramResult result = runProgram(run("movie.avi"), inGone);
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.errors, HasSubstr("corvane: Cannot write movie.avi: "));
}

// Nobody, not even an administrator, can make files in /proc.
TEST_F(Environment, isAFolderThatCannotBeWrittenTo) {
    EXPECT_THAT(complaintAbout(run("movie.avi"), through({"env", "-C", "/proc"})),
                StartsWith("corvane: Cannot write movie.avi: "));
    EXPECT_THAT(complaintAbout(run("/proc/movie.avi")),
                StartsWith("corvane: Cannot write /proc/movie.avi: "));
    EXPECT_THAT(complaintAbout(run(keyFrames + "/movie.avi")), HasSubstr("there is no folder"));
    EXPECT_THAT(complaintAbout(run("/dev/full.avi/movie.avi")), HasSubstr("there is no folder"));
}

TEST_F(Environment, isToldByOneOption) {
    const ProgramResult result = runProgram({"--system"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    for (const char* told : {"pictures  ", "OpenGL ", "Qt 6", "libavcodec ", "VTK 9", "glibc "}) {
        EXPECT_THAT(result.output, HasSubstr(told));
    }
}

TEST_F(Environment, hasNoDriverThatDraws) {
    const Surroundings without = through({"env", "__EGL_VENDOR_LIBRARY_FILENAMES=/none.json"});
    const std::string complaint = "No picture can be drawn: ";
    EXPECT_THAT(complaintAbout(run(folder.file("movie.avi")), without),
                AllOf(HasSubstr(complaint), HasSubstr("libegl-mesa0"), HasSubstr("--system")));
    const ProgramResult result = runProgram({"--system"}, without);
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.output, HasSubstr(complaint));
    EXPECT_THAT(result.output, HasSubstr("VTK 9"));
}

TEST_F(Environment, hasADiskThatIsFull) {
    // A limit on the size of files: writing fails as it does there, in the middle of the file.
    const Surroundings full = inShell("ulimit -f 4; exec \"$@\"");
    for (const char* name : {"movie.avi", "movie.mp4", "movie.swf", "movie.rm"}) {
        auto arguments = run(folder.file(name));
        arguments.back() = "320x180";
        EXPECT_THAT(complaintAbout(arguments, full), HasSubstr(folder.file(name)));
    }
    // Long enough a record does not fit either.
    std::string lines;
    for (int i = 0; i < 200; ++i) {
        lines += "$!EXPORTSETUP ImageWidth = 64\n";
    }
    const std::string macro = folder.write("many.mcr", lines);
    EXPECT_THAT(complaintAbout({"--batch", "--macro", macro, "--record", folder.file("r")}, full),
                HasSubstr("Cannot write the macro " + folder.file("r")));
}

TEST_F(Environment, hasNoPlaceForTheRecord) {
    auto arguments = run(folder.file("movie.avi"));
    arguments.insert(arguments.end(), {"--record", "/proc/record.mcr"});
    // Told before the flight, which leaves no movie then.
    EXPECT_THAT(complaintAbout(arguments), StartsWith("corvane: Cannot write /proc/record.mcr: "));
}

TEST_F(Environment, hasNoPlaceForHelp) {
    for (const char* output : {">/dev/full", ">&-"}) {
        const ProgramResult result =
            runProgram({"--help"}, inShell(std::string("exec \"$@\" ") + output));
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_EQ(result.errors, "corvane: Cannot write to standard output.\n");
    }
}

} // namespace
