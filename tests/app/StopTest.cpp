// Ctrl-C: no file, exit code 130, and an older movie untouched.
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
    EXPECT_FALSE(fs::exists(movie + ".part"));
}

INSTANTIATE_TEST_SUITE_P(Signals, Stop, testing::Values(SIGINT, SIGTERM), [](const auto& signal) {
    return signal.param == SIGINT ? "Interrupt" : "Terminate";
});

} // namespace
