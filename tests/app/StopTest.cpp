// Ctrl-C: no file, exit code 130, and older files untouched.
#include "tests/app/Program.h"
#include "tests/app/WakeFlight.h"
#include "tests/support/TempFolder.h"

#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>

namespace fs = std::filesystem;
using namespace corvane::test;

namespace {

// Long enough that the signal always finds the flight under way.
std::string longFlight() {
    std::string flight = shortFlight();
    const std::string count = "FrameCount 6";
    return flight.replace(flight.find(count), count.size(), "FrameCount 2000");
}

class Stop : public testing::TestWithParam<int> {};

TEST_P(Stop, endsTheFlightAndLeavesNothing) {
    const TempFolder folder;
    const std::string movie = folder.file("flight.mp4");
    writeFile(movie, "an older movie");
    auto arguments = shortRun(folder, movie);
    writeFile(folder.file("short.keyframe"), longFlight());
    arguments.back() = "64x36";

    Program program(arguments);
    ASSERT_TRUE(program.waitForError("Animating.... 10 %"));
    program.signal(GetParam());
    const ProgramResult result = program.finish();

    EXPECT_EQ(result.exitCode, 130) << result.errors;
    EXPECT_NE(result.errors.find("corvane: Stopped"), std::string::npos) << result.errors;
    EXPECT_EQ(readFile(movie), "an older movie");
    EXPECT_FALSE(folder.hasParts());
}

TEST_P(Stop, leavesTheRecordAsItWas) {
    const TempFolder folder;
    const std::string record = folder.write("record.mcr", "an older record");
    auto arguments = shortRun(folder, folder.file("flight.mp4"));
    writeFile(folder.file("short.keyframe"), longFlight());
    arguments.back() = "64x36";
    arguments.insert(arguments.end(), {"--record", record});

    Program program(arguments);
    ASSERT_TRUE(program.waitForError("Animating.... 10 %"));
    program.signal(GetParam());
    EXPECT_EQ(program.finish().exitCode, 130);
    EXPECT_EQ(folder.names(), (std::set<std::string>{"record.mcr", "short.keyframe"}));
    EXPECT_EQ(readFile(record), "an older record");
}

TEST_P(Stop, endsAMacroBetweenItsLines) {
    const TempFolder folder;
    folder.write("short.keyframe", shortFlight());
    std::string macro = "$!READDATA \"" + exampleFile("wake/body.vtp") +
                        "\"\n"
                        "$!EXTCOMMAND \"Key Frame Animation\" "
                        "\"OpenSettingsFile FileName=\\\"${MACRO_FOLDER}/short.keyframe\\\"\"\n"
                        "$!EXPORTSETUP ExportFName = \"${MACRO_FOLDER}/flight.avi\"\n"
                        "$!EXTCOMMAND \"Key Frame Animation\" "
                        "\"Animate AnimationDestination=ToFile\"\n";
    // More than can be made before the signal arrives.
    constexpr int pictures = 20000;
    for (int i = 0; i < pictures; ++i) {
        macro += "$!PICTURE picture.png\n";
    }
    Program program({"--batch", "--macro", folder.write("scene.mcr", macro), "--size", "64x36",
                     "--record", folder.file("record.mcr")});
    ASSERT_TRUE(program.waitForError("Animating.... 90 %"));
    program.signal(GetParam());
    const ProgramResult result = program.finish();

    EXPECT_EQ(result.exitCode, 130) << result.errors;
    EXPECT_NE(result.errors.find("corvane: Stopped"), std::string::npos) << result.errors;
    EXPECT_FALSE(folder.has("record.mcr"));
    EXPECT_FALSE(folder.hasParts());
}

INSTANTIATE_TEST_SUITE_P(Signals, Stop, testing::Values(SIGINT, SIGTERM), [](const auto& signal) {
    return signal.param == SIGINT ? "Interrupt" : "Terminate";
});

} // namespace
