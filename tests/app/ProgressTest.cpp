// What a flight says while it lasts: one line that changes on a terminal, sparse lines in a log,
// nothing when it is to be quiet.
#include "tests/app/Program.h"
#include "tests/app/WakeFlight.h"
#include "tests/support/TempFolder.h"

#include <csignal>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace corvane::test;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::Not;

namespace {

const Surroundings onTerminal{.hasTerminal = true};
constexpr const char* closingLine = "movie.avi: [0-9]+ frames in [0-9.]+ s, [0-9.]+ frames a "
                                    "second, [0-9]+ % of it drawing";

class ProgressOfAFlight : public testing::Test {
protected:
    std::vector<std::string> run(int frames, std::vector<std::string> more = {}) const {
        StandingFlight flight{.frames = frames};
        more.insert(more.begin(), {exampleFile("wake/body.vtp"), "--keyframes",
                                   folder.write("flight.keyframe", flight.keyFrameFile()),
                                   "--output", folder.file("movie.avi"), "--size", "64x36"});
        return more;
    }

    const TempFolder folder;
};

TEST_F(ProgressOfAFlight, isALineForEachTenthInALog) {
    const ProgramResult result = runProgram(run(20));
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, "");
    for (const char* text : {"Creating interpolated views....", "Animating...."}) {
        EXPECT_THAT(result.errors, HasSubstr(std::string(text) + " 10 %\n" + text + " 20 %\n"));
        EXPECT_THAT(result.errors, HasSubstr(std::string(text) + " 90 %\n"));
    }
    EXPECT_THAT(result.errors, Not(HasSubstr("\r")));
    EXPECT_THAT(result.errors.substr(result.errors.rfind('\n', result.errors.size() - 2)),
                MatchesRegex("\ncorvane: .*" + std::string(closingLine) + "\n"));
}

TEST_F(ProgressOfAFlight, isOneLineOnATerminalThatGoesAway) {
    Program program(run(5000), onTerminal);
    // Ten times a second, however quick the flight is.
    ASSERT_TRUE(program.waitForError(" s left (Ctrl-C stops)"));
    program.signal(SIGINT);
    const ProgramResult result = program.finish();
    EXPECT_EQ(result.exitCode, 130);
    const std::string end = "\r\x1b[Kcorvane: Stopped; what was not complete was not written.\r\n";
    EXPECT_EQ(result.errors.find('\n'), result.errors.size() - 1) << result.errors;
    ASSERT_GT(result.errors.size(), end.size());
    EXPECT_EQ(result.errors.substr(result.errors.size() - end.size()), end);
}

TEST_F(ProgressOfAFlight, endsWithTheClosingLineOnATerminal) {
    const ProgramResult result = runProgram(run(3), onTerminal);
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_THAT(result.errors,
                MatchesRegex("(.*\r\x1b\\[K)*corvane: .*" + std::string(closingLine) + "\r\n"));
}

TEST_F(ProgressOfAFlight, isNotShownWhenQuiet) {
    for (const Surroundings& surroundings : {Surroundings(), onTerminal}) {
        const ProgramResult good = runProgram(run(3, {"--quiet"}), surroundings);
        EXPECT_EQ(good.exitCode, 0);
        EXPECT_EQ(good.output, "");
        EXPECT_EQ(good.errors, "");
        const ProgramResult bad = runProgram(run(1, {"--quiet"}), surroundings);
        EXPECT_EQ(bad.exitCode, 1);
        EXPECT_THAT(bad.errors, MatchesRegex("corvane: [^\n]+\n"));
    }
}

} // namespace
