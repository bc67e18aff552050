// What stands in the folder when runs meet there, end early, or find it in disorder.
#include "tests/app/Program.h"
#include "tests/app/WakeFlight.h"
#include "tests/support/TempFolder.h"

#include <csignal>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace fs = std::filesystem;
using namespace corvane::test;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

namespace {

const std::string underWay = "Animating.... 10 %";
constexpr int endless = 5000; ///< frames of a flight that is killed

class Outputs : public testing::TestWithParam<const char*> {
protected:
    std::vector<std::string> shortFlightTo(const std::string& name) const {
        return shortRun(folder, folder.file(name));
    }
    /// More frames than can be made before a signal arrives.
    std::vector<std::string> longFlightTo(const std::string& name, int frames = 500) const {
        auto arguments = shortFlightTo(name);
        std::string flight = shortFlight();
        const std::string count = "FrameCount 6";
        flight.replace(flight.find(count), count.size(), "FrameCount " + std::to_string(frames));
        arguments[2] = folder.write("long.keyframe", flight);
        arguments.back() = "64x36";
        return arguments;
    }
    std::string movieOf(const std::vector<std::string>& arguments) const {
        EXPECT_EQ(runProgram(arguments).exitCode, 0);
        std::string movie = readFile(arguments[4]);
        fs::remove(arguments[4]);
        return movie;
    }

    TempFolder folder;
};

TEST_P(Outputs, ofTwoRunsAreWholeAndTheLastOneStays) {
    const std::string name = std::string("flight") + GetParam();
    const std::string shorter = movieOf(shortFlightTo(name));
    const std::string longer = movieOf(longFlightTo(name));

    Program slow(longFlightTo(name));
    ASSERT_TRUE(slow.waitForError(underWay));
    slow.signal(SIGSTOP);
    const ProgramResult quick = runProgram(shortFlightTo(name));
    EXPECT_EQ(quick.exitCode, 0);
    EXPECT_THAT(quick.errors, Not(HasSubstr("Removed")));
    EXPECT_TRUE(folder.read(name) == shorter);
    slow.signal(SIGCONT);
    EXPECT_EQ(slow.finish().exitCode, 0);
    EXPECT_TRUE(folder.read(name) == longer);
    EXPECT_FALSE(folder.hasParts());
}

TEST_P(Outputs, ofAKilledRunAreRemovedByTheNext) {
    const std::string name = std::string("flight") + GetParam();
    folder.write(name, "older");
    Program killed(longFlightTo(name, endless));
    ASSERT_TRUE(killed.waitForError(underWay));
    killed.signal(SIGKILL);
    EXPECT_EQ(killed.finish().exitCode, -1);
    EXPECT_EQ(folder.read(name), "older");
    EXPECT_TRUE(folder.hasParts());

    const ProgramResult next = runProgram(shortFlightTo(name));
    EXPECT_EQ(next.exitCode, 0);
    EXPECT_THAT(next.errors, HasSubstr("corvane: Removed " + name));
    EXPECT_FALSE(folder.hasParts());
}

TEST_P(Outputs, leaveAloneWhatIsCalledLikeAPart) {
    const std::string name = std::string("flight") + GetParam();
    folder.write("precious", "precious");
    fs::create_symlink("precious", folder.file(name + ".part"));
    fs::create_symlink("precious", folder.file(name + ".part.plain"));
    ASSERT_EQ(mkfifo(folder.file("record.mcr.part").c_str(), 0600), 0);
    auto arguments = shortFlightTo(name);
    arguments.insert(arguments.end(), {"--record", folder.file("record.mcr")});
    EXPECT_EQ(runProgram(arguments).exitCode, 0);
    EXPECT_EQ(folder.read("precious"), "precious");
    EXPECT_TRUE(folder.has("record.mcr"));
}

INSTANTIATE_TEST_SUITE_P(Formats, Outputs,
                         testing::Values(".mp4", ".avi", ".flv", ".swf", ".wmv", ".rm"),
                         [](const auto& format) { return std::string(format.param + 1); });

TEST_F(Outputs, goWhereALinkLeads) {
    fs::create_directory(folder.file("disk"));
    fs::create_symlink("disk/real.avi", folder.file("flight.avi"));
    EXPECT_EQ(runProgram(shortFlightTo("flight.avi")).exitCode, 0);
    EXPECT_TRUE(fs::is_symlink(folder.file("flight.avi")));
    EXPECT_TRUE(fs::is_regular_file(folder.file("disk/real.avi")));
}

TEST_F(Outputs, mayHaveTheLongestName) {
    const std::string name = std::string(251, 'm') + ".mp4";
    EXPECT_EQ(runProgram(shortFlightTo(name)).exitCode, 0);
    EXPECT_TRUE(folder.has(name));
    const ProgramResult tooLong = runProgram(shortFlightTo("m" + name));
    EXPECT_EQ(tooLong.exitCode, 1);
    EXPECT_THAT(tooLong.errors, HasSubstr("its name has 256 bytes, and 255 are possible there."));
}

TEST_F(Outputs, ofAFolderThatVanishesAreToldToBeLost) {
    fs::create_directory(folder.file("films"));
    Program program(longFlightTo("films/flight.avi"));
    ASSERT_TRUE(program.waitForError(underWay));
    fs::remove_all(folder.file("films"));
    const ProgramResult result = program.finish();
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.errors, HasSubstr("Cannot write " + folder.file("films/flight.avi") +
                                         ": there is no folder " + folder.file("films") + "."));
}

TEST_F(Outputs, ofATraceThatIsKilledCanBeRead) {
    const std::vector<std::string> trace{"--trace", folder.file("calls.txt")};
    auto arguments = longFlightTo("flight.avi", endless);
    arguments.insert(arguments.end(), trace.begin(), trace.end());
    Program killed(arguments);
    ASSERT_TRUE(killed.waitForError(underWay));
    killed.signal(SIGKILL);
    killed.finish();
    EXPECT_FALSE(folder.has("calls.txt"));
    for (const std::string& name : folder.names()) {
        if (name.starts_with("calls.txt.")) {
            EXPECT_THAT(folder.read(name), HasSubstr("CorUtilExportStart() = TRUE"));
        }
    }
    arguments = shortFlightTo("flight.avi");
    arguments.insert(arguments.end(), trace.begin(), trace.end());
    EXPECT_EQ(runProgram(arguments).exitCode, 0);
    EXPECT_THAT(folder.names(),
                ElementsAre("calls.txt", "flight.avi", "long.keyframe", "short.keyframe"));
}

TEST_F(Outputs, areDrawnAtTheLargestWidth) {
    const std::string macro =
        folder.write("scene.mcr", "$!READDATA \"" + exampleFile("wake/body.vtp") +
                                      "\"\n$!PICTURE \"wide.png\"\n");
    const ProgramResult result = runProgram({"--batch", "--macro", macro, "--size", "32766x16"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    // The size stands behind the signature, and the length and kind of the first chunk.
    EXPECT_EQ(folder.read("wide.png").substr(16, 8), std::string("\0\0\x7F\xFE\0\0\0\x10", 8));
}

TEST_F(Outputs, ofAFailedRunAreNoneButItsTrace) {
    auto arguments = shortFlightTo("flight.avi");
    arguments[0] = folder.file("missing.vtu");
    arguments.insert(arguments.end(), {"--trace", folder.file("calls.txt")});
    EXPECT_EQ(runProgram(arguments).exitCode, 1);
    EXPECT_THAT(folder.names(), ElementsAre("calls.txt", "short.keyframe"));
}

} // namespace
