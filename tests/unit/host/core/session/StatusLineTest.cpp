// Tests of the percent-done display's nesting and its wish to stop.
#include "host/core/session/StatusLine.h"

#include "tests/support/MemoryHost.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace corvane::host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class StatusLineTest : public testing::Test {
protected:
    test::ScriptedStatus display;
    StatusLine line{display};
};

TEST_F(StatusLineTest, showsTextAndPercent) {
    line.start("Playing", true, false);
    EXPECT_TRUE(line.isActive());
    EXPECT_TRUE(line.check(5));
    line.setText("Half way");
    EXPECT_TRUE(line.check(50));
    line.finish();
    EXPECT_FALSE(line.isActive());
    EXPECT_THAT(display.events(), ElementsAre("start \"Playing\" stop", "percent 5",
                                              "text \"Half way\"", "percent 50", "finish"));
}

TEST_F(StatusLineTest, clampsPercent) {
    line.start("", false, true);
    line.check(-20);
    line.check(1000);
    EXPECT_THAT(display.percents(), ElementsAre(0, 100));
}

TEST_F(StatusLineTest, latchesTheWishToStopUntilTheEnd) {
    line.start("", true, true);
    display.stopAtCheck(1);
    EXPECT_FALSE(line.check(1));
    display.forgetStop();
    EXPECT_FALSE(line.check(2));
    EXPECT_TRUE(line.wasStopped());
    line.finish();
    EXPECT_TRUE(line.wasStopped());
    line.start("", true, true);
    EXPECT_FALSE(line.wasStopped());
    EXPECT_TRUE(line.check(3));
}

TEST_F(StatusLineTest, aFailureStopsWithoutTheUser) {
    bool failed = false;
    StatusLine guarded(display, [&failed] { return failed; });
    guarded.start("", true, true);
    EXPECT_TRUE(guarded.check(1));
    failed = true;
    EXPECT_FALSE(guarded.check(2));
    failed = false;
    EXPECT_FALSE(guarded.check(3)) << "it stays so until the display is finished";
    EXPECT_FALSE(guarded.wasStopped());
    guarded.finish();
    guarded.start("", true, true);
    EXPECT_TRUE(guarded.check(4));
}

TEST_F(StatusLineTest, showsTheOutermostOfNestedDisplays) {
    line.start("outer", true, true);
    line.start("inner", true, true);
    line.setText("inner text");
    EXPECT_TRUE(line.check(99));
    line.finish();
    EXPECT_TRUE(line.isActive());
    EXPECT_TRUE(line.check(10));
    line.finish();
    EXPECT_THAT(display.events(), ElementsAre("start \"outer\" stop bar", "percent 10", "finish"));
}

TEST_F(StatusLineTest, aStopWithinANestedDisplayReachesTheOutermost) {
    line.start("outer", true, true);
    line.start("inner", true, true);
    display.stopAtCheck(1);
    EXPECT_FALSE(line.check(1));
    display.forgetStop();
    line.finish();
    EXPECT_FALSE(line.check(2));
}

TEST_F(StatusLineTest, toleratesCallsWithoutAStart) {
    display.stopAtCheck(1);
    line.setText("nobody sees this");
    EXPECT_TRUE(line.check(50));
    line.finish();
    EXPECT_FALSE(line.isActive());
    EXPECT_THAT(display.events(), IsEmpty());
    EXPECT_EQ(display.checks(), 0U);
}

} // namespace
} // namespace corvane::host
