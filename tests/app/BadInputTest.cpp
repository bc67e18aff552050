// Work that cannot be done: one clear sentence, exit code 1, no movie, and an older movie
// untouched.
#include "tests/app/Program.h"
#include "tests/app/WakeFlight.h"
#include "tests/support/Folders.h"
#include "tests/support/TempFolder.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iterator>
#include <set>
#include <sys/stat.h>

namespace fs = std::filesystem;
using namespace corvane::test;
using testing::HasSubstr;

namespace {

class BadInput : public testing::Test {
protected:
    BadInput() { writeFile(movie, "an older movie"); }

    /// Runs the short flight with changed arguments and expects a refusal that names the parts.
    void expectFailure(const std::vector<std::string>& arguments,
                       const std::vector<std::string>& parts) {
        const ProgramResult result = runProgram(arguments);
        EXPECT_EQ(result.exitCode, 1) << result.errors;
        ASSERT_FALSE(result.errors.empty());
        const std::string lastLine = lastLineOf(result.errors);
        EXPECT_EQ(lastLine.rfind("corvane: ", 0), 0U) << result.errors;
        for (const std::string& part : parts) {
            EXPECT_THAT(lastLine, HasSubstr(part));
        }
        EXPECT_TRUE(readFile(movie) == "an older movie");
        EXPECT_FALSE(folder.hasParts());
    }

    /// With a key frame file of this content.
    void expectBadFlight(const std::string& content, const std::vector<std::string>& parts) {
        std::vector<std::string> arguments = shortRun(folder, movie);
        writeFile(folder.file("short.keyframe"), content);
        expectFailure(arguments, parts);
    }

    static std::string lastLineOf(const std::string& text) {
        const auto end = text.find_last_not_of('\n');
        const auto start = text.rfind('\n', end);
        return text.substr(start == std::string::npos ? 0 : start + 1, end - start);
    }

    static std::string replaced(std::string text, const std::string& what, const std::string& by) {
        const auto at = text.find(what);
        EXPECT_NE(at, std::string::npos) << what;
        return text.replace(at, what.size(), by);
    }

    /// The file of the n-th time step of a copy of the sample data.
    static std::string stepOf(const std::string& wake, int n) {
        std::set<std::string> steps;
        for (const auto& entry : fs::recursive_directory_iterator(wake)) {
            if (entry.path().extension() == ".vtu") {
                steps.insert(entry.path().string());
            }
        }
        return *std::next(steps.begin(), n);
    }

    TempFolder folder;
    const std::string movie = folder.file("flight.mp4");
};

TEST_F(BadInput, missingDataFile) {
    auto arguments = shortRun(folder, movie);
    arguments[0] = folder.file("none.pvd");
    expectFailure(arguments, {"none.pvd"});
}

TEST_F(BadInput, brokenDataFile) {
    const std::string whole = readFile(exampleFile("wake/wake_00.vtu"));
    auto arguments = shortRun(folder, movie);
    arguments[0] = folder.file("broken.vtu");
    for (const std::string& content :
         {whole.substr(0, whole.size() / 2), std::string(), std::string("not XML at all")}) {
        writeFile(arguments[0], content);
        expectFailure(arguments, {"broken.vtu"});
    }
}

TEST_F(BadInput, dataThatLeadTheirReaderAstray) {
    auto arguments = shortRun(folder, movie);
    arguments[0] = folder.file("five.obj");
    writeFile(arguments[0], "v 0 0 0\nv 1 0 0\nv 0 1 0\nvn 0 0 1\nf 1//1 2//2000000 3//1000000\n");
    expectFailure(arguments, {"five.obj cannot be read: it is damaged: "});
}

TEST_F(BadInput, dataOfAnUnknownKind) {
    auto arguments = shortRun(folder, movie);
    arguments[0] = folder.file("data.xyz");
    writeFile(arguments[0], "1 2 3\n");
    expectFailure(arguments, {"data.xyz"});
}

TEST_F(BadInput, aTimeStepThatIsMissingOrCutShort) {
    for (const char* damage : {"missing", "cut short"}) {
        const std::string wake = folder.file(std::string("wake ") + damage);
        fs::copy(exampleFile("wake"), wake, fs::copy_options::recursive);
        const std::string step = stepOf(wake, 8);
        if (damage == std::string("missing")) {
            fs::remove(step);
        } else {
            fs::resize_file(step, fs::file_size(step) / 2);
        }
        auto arguments = shortRun(folder, movie);
        arguments[0] = wake + "/wake.pvd";
        writeFile(arguments[2], replaced(shortFlight(), "AnimateTime false", "AnimateTime true"));
        expectFailure(arguments, {fs::path(step).filename().string()});
    }
}

TEST_F(BadInput, missingKeyFrameFile) {
    auto arguments = shortRun(folder, movie);
    arguments[2] = folder.file("none.keyframe");
    expectFailure(arguments, {"none.keyframe", "Unable to open file for reading."});
}

TEST_F(BadInput, keyFrameFileWithAQuoteInItsName) {
    auto arguments = shortRun(folder, movie);
    arguments[2] = folder.file("a\"b.keyframe");
    writeFile(arguments[2], shortFlight());
    expectFailure(arguments, {"double quote"});
}

TEST_F(BadInput, keyFrameFileThatMayHaveNoEnd) {
    auto arguments = shortRun(folder, movie);
    arguments[2] = folder.file("pipe");
    ASSERT_EQ(mkfifo(arguments[2].c_str(), 0600), 0);
    expectFailure(arguments, {arguments[2] + ": it is not a regular file."});
    arguments[2] = "/dev/zero";
    expectFailure(arguments, {"/dev/zero: it is not a regular file."});
}

TEST_F(BadInput, notAKeyFrameFile) {
    expectBadFlight("", {"Invalid file header."});
    expectBadFlight("#!KeyFrame 2\n", {"File created with a newer version"});
    expectBadFlight(std::string("\0\x01\xff binary", 10), {"Invalid file header."});
}

TEST_F(BadInput, keyFrameFileWithAWrongLine) {
    expectBadFlight(replaced(shortFlight(), "Width 15", "Width wide"),
                    {"Unable to read width value.", "Error occurred on line number 16."});
    expectBadFlight(replaced(shortFlight(), "Position 4 -24 11", "Position 4 -24"),
                    {"Number of expected values: 3", "Number of values read: 2"});
    expectBadFlight(replaced(shortFlight(), " Position 4 -24 11\n", ""), {"Position"});
}

TEST_F(BadInput, oneKeyFrameIsNoFlight) {
    const std::string flight = shortFlight();
    const auto secondView = flight.find("%KeyFrameView\n\n%KeyFrameView");
    ASSERT_NE(secondView, std::string::npos);
    expectBadFlight(flight.substr(0, secondView + 13),
                    {"At least two keyFrame views must be established to perform an animation."});
}

TEST_F(BadInput, missingAndBrokenAddOn) {
    auto arguments = shortRun(folder, movie);
    arguments.insert(arguments.end(), {"--add-on", folder.file("none.so")});
    expectFailure(arguments, {"none.so"});

    const std::string text = folder.file("text.so");
    writeFile(text, "this is no library");
    arguments.back() = text;
    expectFailure(arguments, {"text.so"});

    // A library, but no add-on.
    arguments.back() = builtFile("lib/libcorvane.so");
    expectFailure(arguments, {"libcorvane.so", "InitCorAddOn113"});
}

TEST_F(BadInput, outputInAFolderThatDoesNotExist) {
    auto arguments = shortRun(folder, movie);
    arguments[4] = folder.file("none/flight.mp4");
    expectFailure(arguments, {"none"});
    EXPECT_FALSE(fs::exists(folder.file("none")));
}

TEST_F(BadInput, outputIsAFolder) {
    auto arguments = shortRun(folder, movie);
    arguments[4] = folder.file("taken.mp4");
    fs::create_directory(arguments[4]);
    expectFailure(arguments, {"taken.mp4"});
    EXPECT_TRUE(fs::is_directory(arguments[4]));
}

TEST_F(BadInput, pictureLargerThanCanBeDrawn) {
    auto arguments = shortRun(folder, movie);
    arguments.back() = "32766x32766";
    expectFailure(arguments, {"32766"});
}

TEST_F(BadInput, macroThatCannotBePlayed) {
    auto arguments = shortRun(folder, movie);
    arguments.insert(arguments.end(), {"--macro", folder.file("scene.mcr")});
    expectFailure(arguments, {"scene.mcr"});
    writeFile(arguments.back(), "# a scene\n$!STYLE Slice/1/Nothing = 1\n");
    expectFailure(arguments, {"scene.mcr", "2", "$!STYLE Slice/1/Nothing = 1"});
}

TEST_F(BadInput, traceFileThatCannotBeWritten) {
    auto arguments = shortRun(folder, movie);
    arguments.insert(arguments.end(), {"--trace", folder.file("none/calls.txt")});
    expectFailure(arguments, {"none/calls.txt"});
}

} // namespace
