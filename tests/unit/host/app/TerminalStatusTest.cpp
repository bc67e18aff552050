// Progress on a terminal and in a log, with a clock that the test turns.
#include "host/app/TerminalStatus.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>

using corvane::app::TerminalStatus;
using testing::HasSubstr;

namespace {

class Progress : public testing::Test {
protected:
    TerminalStatus make(bool isTerminal) {
        return TerminalStatus(
            out, isTerminal, [this] { return stop; }, [this] { return now; });
    }
    std::string taken() {
        const std::string text = out.str();
        out.str("");
        return text;
    }

    std::ostringstream out;
    bool stop = false;
    std::chrono::steady_clock::time_point now;
};

TEST_F(Progress, aLogGetsOneLineForEachTenth) {
    TerminalStatus status = make(false);
    status.start("Animating.... Press [Esc] or click [Stop] to cancel.", true, true);
    for (const int percent : {0, 3, 9, 10, 11, 19, 35, 99}) {
        status.setPercent(percent);
    }
    status.finish();
    EXPECT_EQ(taken(), "Animating.... 10 %\nAnimating.... 30 %\nAnimating.... 90 %\n");
}

TEST_F(Progress, aTerminalShowsRateAndTimeLeftAndIsLeftClean) {
    TerminalStatus status = make(true);
    status.start("Animating.... Press [Esc] or click [Stop] to cancel.", true, true);
    for (int frame = 1; frame <= 25; ++frame) {
        now += std::chrono::milliseconds(200);
        status.setPercent(frame);
    }
    const std::string text = taken();
    EXPECT_THAT(text, HasSubstr("Animating.... 25 %, 5.0/s, 15 s left (Ctrl-C stops)"));
    EXPECT_EQ(text.find('\n'), std::string::npos);
    EXPECT_EQ(text.find("[Esc]"), std::string::npos);
    status.finish();
    EXPECT_EQ(taken(), "\r\x1b[K");
}

TEST_F(Progress, aTerminalIsWrittenAtMostTenTimesASecond) {
    TerminalStatus status = make(true);
    status.start("Creating", true, true);
    for (int step = 0; step < 1000; ++step) {
        now += std::chrono::milliseconds(1);
        status.setPercent(step / 10);
    }
    const std::string text = taken();
    EXPECT_EQ(std::count(text.begin(), text.end(), '\r'), 10);
}

TEST_F(Progress, nothingIsErasedWhereNothingWasWritten) {
    TerminalStatus status = make(true);
    status.start("Creating", true, true);
    status.finish();
    EXPECT_EQ(taken(), "");
}

TEST_F(Progress, eachDisplayStartsAnew) {
    TerminalStatus status = make(false);
    status.start("One", true, true);
    status.setPercent(100);
    status.finish();
    status.start("Two", true, true);
    status.setPercent(10);
    EXPECT_EQ(taken(), "One 100 %\nTwo 10 %\n");
}

TEST_F(Progress, theWishToStopIsThatOfTheSource) {
    TerminalStatus status = make(false);
    EXPECT_FALSE(status.isStopRequested());
    stop = true;
    EXPECT_TRUE(status.isStopRequested());
}

} // namespace
