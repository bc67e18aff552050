// Tests of the commands about frames and the work area.
#include "tests/unit/host/core/commands/MacroTest.h"

#include <gmock/gmock.h>

namespace corvane::host {
namespace {

using testing::HasSubstr;

using MacroFrameCommandsTest = MacroTest;

TEST_F(MacroFrameCommandsTest, sizesTheWorkArea) {
    play("$!READDATA x\n$!WORKAREA Width = 1000 Height = 500\n");
    EXPECT_EQ(session.page().workArea, (WorkArea{1000, 500, 125.0}));
    EXPECT_EQ(frame().placement, (Placement{0, 0, 8, 4}));
    play("$!WORKAREA height = 500 width = 1000 pixelsperinch = 50.5\n");
    EXPECT_EQ(session.page().workArea, (WorkArea{1000, 500, 50.5}));
    EXPECT_TRUE(session.drawing().isMarked());
}

TEST_F(MacroFrameCommandsTest, aSizeThatTheUserGaveShowsAsMuchPaper) {
    session.silentPage().workArea = {320, 200, 40.0};
    program.macros().keepPictureSize();
    play("$!WORKAREA Width = 1000 Height = 500 PixelsPerInch = 50\n");
    EXPECT_EQ(session.page().workArea, (WorkArea{320, 200, 16.0}));
}

TEST_F(MacroFrameCommandsTest, refusesWorkAreasThatCannotBe) {
    const WorkArea before = session.page().workArea;
    for (const char* line : {"$!WORKAREA", "$!WORKAREA Width = 100", "$!WORKAREA Height = 100",
                             "$!WORKAREA 100 x 100"}) {
        EXPECT_THAT(causeOf(line), HasSubstr("Expected Width = pixels, Height = pixels")) << line;
    }
    EXPECT_EQ(causeOf("$!WORKAREA Width = 3 Height = 9"), "Width cannot be \"3\".");
    EXPECT_EQ(causeOf("$!WORKAREA Width = 9 Height = 32767"), "Height cannot be \"32767\".");
    EXPECT_EQ(causeOf("$!WORKAREA Width = 9 Height = 9 PixelsPerInch = 0"),
              "PixelsPerInch cannot be \"0\".");
    EXPECT_EQ(causeOf("$!WORKAREA Depth = 9"), "A work area has no value \"Depth\".");
    session.status().start("Flying", true, true);
    EXPECT_EQ(causeOf("$!WORKAREA Width = 100 Height = 100"), "An animation is running.");
    session.status().finish();
    EXPECT_EQ(session.page().workArea, before);
}

TEST_F(MacroFrameCommandsTest, makesAndArrangesFrames) {
    play("$!FRAME CREATE\n$!FRAME CREATE X = 4 y = 1 Width = 2 Height = 3\n");
    ASSERT_EQ(session.page().frames().size(), 2U);
    EXPECT_EQ(frame().id(), 2);
    EXPECT_EQ(frame().placement, (Placement{4, 1, 2, 3}));
    play("$!FRAME PLACE X = 5\n");
    EXPECT_EQ(frame().placement, (Placement{5, 1, 2, 3}));
    play("$!FRAME ACTIVATE = 1\n");
    EXPECT_EQ(frame().id(), 1);
    EXPECT_EQ(session.page().frames().front()->id(), 2);
    play("$!FRAME POP\n");
    EXPECT_EQ(session.page().frames().front()->id(), 1);
    play("$!FRAME PUSH\n");
    EXPECT_EQ(session.page().frames().front()->id(), 2);
    EXPECT_EQ(frame().id(), 1) << "the stack is one thing, the active frame another";
    play("$!FRAME DELETE\n");
    EXPECT_EQ(frame().id(), 2);
    play("$!FRAME DELETE\n");
    EXPECT_EQ(causeOf("$!FRAME DELETE"), "There is no frame.");
}

TEST_F(MacroFrameCommandsTest, framesThatCannotBeAreRefused) {
    play("$!FRAME CREATE\n");
    EXPECT_EQ(causeOf("$!FRAME CREATE Width = 0"), "Width cannot be \"0\".");
    EXPECT_EQ(causeOf("$!FRAME PLACE X = nan"), "X cannot be \"nan\".");
    EXPECT_EQ(causeOf("$!FRAME PLACE Z = 1"), "A frame has no value \"Z\".");
    EXPECT_EQ(causeOf("$!FRAME ACTIVATE = 7"), "There is no frame 7.");
    EXPECT_EQ(causeOf("$!FRAME ACTIVATE 7"), "Expected ACTIVATE = number.");
    EXPECT_EQ(causeOf("$!FRAME POP now"), "Expected nothing behind the word.");
    EXPECT_THAT(causeOf("$!FRAME FLY"), HasSubstr("Expected CREATE"));
    session.status().start("Playing", true, true);
    EXPECT_EQ(causeOf("$!FRAME DELETE"), "An animation is running.");
    session.status().finish();
    EXPECT_EQ(session.page().frames().size(), 1U);
}

} // namespace
} // namespace corvane::host
