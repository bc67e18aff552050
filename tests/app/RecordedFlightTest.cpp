// A flight that was recorded in one folder can be replayed in another, whatever its files are
// called.
#include "tests/app/Program.h"
#include "tests/app/WakeFlight.h"
#include "tests/support/TempFolder.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fs = std::filesystem;
using namespace corvane::test;
using testing::HasSubstr;

namespace {

Surroundings in(const std::string& folder) {
    return {.wrapper = {"env", "-C", folder}};
}

class RecordedFlight : public testing::TestWithParam<const char*> {
protected:
    void SetUp() override {
        fs::create_directories(here);
        writeFile(here + "/" + flightName, StandingFlight{.frames = 3}.keyFrameFile());
        fs::copy_file(exampleFile("wake/body.vtp"), here + "/body.vtp");
    }

    /// The record makes the same movie again, started from elsewhere.
    void expectReplay() const {
        const std::string movie = here + "/" + movieName;
        const std::string first = readFile(movie);
        ASSERT_FALSE(first.empty());
        ASSERT_TRUE(fs::remove(movie));
        const ProgramResult result =
            runProgram({"--batch", "--macro", here + "/record.mcr", "--quiet"}, in("/"));
        EXPECT_EQ(result.exitCode, 0) << result.errors;
        EXPECT_TRUE(readFile(movie) == first);
    }

    const TempFolder folder;
    const std::string name = GetParam();
    const std::string here = folder.file(name);
    const std::string flightName = name + " flight.keyframe";
    const std::string movieName = name + ".avi";
};

TEST_P(RecordedFlight, ofTheCommandLineIsReplayed) {
    const ProgramResult result =
        runProgram({"body.vtp", "--keyframes", flightName, "--output", movieName, "--size", "64x36",
                    "--record", "record.mcr", "--quiet"},
                   in(here));
    ASSERT_EQ(result.exitCode, 0) << result.errors;
    expectReplay();
}

TEST_P(RecordedFlight, ofAMacroIsReplayed) {
    writeFile(here + "/scene.mcr",
              "$!READDATA body.vtp\n"
              "$!EXPORTSETUP ImageWidth = 64\n"
              "$!EXPORTSETUP ExportFName = \"${MOVIE}\"\n"
              "$!EXTCOMMAND \"Key Frame Animation\" "
              "\"OpenSettingsFile FileName=\\\"${MACRO_FOLDER}/${FLIGHT}\\\"\"\n"
              "$!EXTCOMMAND \"Key Frame Animation\" \"Animate AnimationDestination=ToFile\"\n");
    const ProgramResult result =
        runProgram({"--batch", "--macro", "scene.mcr", "--set", "FLIGHT=" + flightName, "--set",
                    "MOVIE=" + movieName, "--size", "64x36", "--record", "record.mcr", "--quiet"},
                   in(here));
    ASSERT_EQ(result.exitCode, 0) << result.errors;
    expectReplay();
}

INSTANTIATE_TEST_SUITE_P(Names, RecordedFlight,
                         testing::Values("two words", "Flüge über Köln", "飛行", "'${x}' $${y}",
                                         "a\\b=c #1"));

TEST(UnrecordableFlight, isRefusedBeforeItBegins) {
    const TempFolder folder;
    const std::string here = folder.file("a \"b\" c");
    fs::create_directory(here);
    writeFile(here + "/flight.keyframe", StandingFlight{.frames = 3}.keyFrameFile());
    const std::vector<std::string> run{exampleFile("wake/body.vtp"),
                                       "--keyframes",
                                       "flight.keyframe",
                                       "--output",
                                       "flight.avi",
                                       "--size",
                                       "64x36",
                                       "--quiet"};
    EXPECT_EQ(runProgram(run, in(here)).exitCode, 0) << "the name itself has no quote";
    ASSERT_TRUE(fs::remove(here + "/flight.avi"));

    auto recorded = run;
    recorded.insert(recorded.end(), {"--record", "record.mcr"});
    const ProgramResult result = runProgram(recorded, in(here));
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.errors,
              "corvane: The key frame file \"" + here +
                  "/flight.keyframe\" has a double quote in its name or folder, which the command "
                  "that opens it cannot carry; rename or move the file.\n");
    EXPECT_FALSE(fs::exists(here + "/record.mcr"));
    EXPECT_FALSE(fs::exists(here + "/flight.avi"));
}

} // namespace
