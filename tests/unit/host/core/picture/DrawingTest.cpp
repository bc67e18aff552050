// Tests of when pictures are made.
#include "host/core/picture/Drawing.h"

#include "host/core/addons/Locks.h"
#include "host/core/base/HostError.h"
#include "host/core/page/Page.h"
#include "tests/support/MemoryHost.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace corvane::host {
namespace {

using testing::ElementsAre;

class DrawingTest : public testing::Test {
protected:
    Page page;
    Locks locks;
    test::MemoryRenderer renderer; ///< and the screen
    test::MemoryIdleTimer timer;
    Drawing drawing{page, locks, renderer, &renderer, &timer};
};

TEST_F(DrawingTest, aMarkDrawsNothingAndAsksForIdleTimeOnce) {
    drawing.mark();
    drawing.mark();
    EXPECT_TRUE(drawing.isMarked());
    EXPECT_EQ(drawing.renders(), 0U);
    EXPECT_EQ(timer.requests(), 1U);
}

TEST_F(DrawingTest, drawsAllFramesOnceWhenDue) {
    drawing.mark();
    drawing.drawIfDue();
    drawing.drawIfDue();
    EXPECT_THAT(renderer.presented(), ElementsAre(true));
    EXPECT_EQ(drawing.renders(), 1U);
    EXPECT_FALSE(drawing.isMarked());
}

TEST_F(DrawingTest, isNotDueWithoutAMark) {
    drawing.drawIfDue();
    EXPECT_EQ(drawing.renders(), 0U);
}

TEST_F(DrawingTest, isNotDueWhileALockIsHeld) {
    locks.start(nullptr);
    drawing.mark();
    drawing.drawIfDue();
    EXPECT_EQ(drawing.renders(), 0U);
    locks.finish(nullptr);
    drawing.drawIfDue();
    EXPECT_EQ(drawing.renders(), 1U);
}

TEST_F(DrawingTest, isNotDueWhileSuspendedAtAnyDepth) {
    drawing.suspend();
    drawing.suspend();
    drawing.mark();
    EXPECT_EQ(timer.requests(), 0U);
    EXPECT_TRUE(drawing.resume());
    drawing.drawIfDue();
    EXPECT_EQ(drawing.renders(), 0U);
    EXPECT_EQ(timer.requests(), 0U);
    EXPECT_TRUE(drawing.resume());
    EXPECT_EQ(drawing.renders(), 0U) << "resuming must not draw by itself";
    EXPECT_EQ(timer.requests(), 1U);
    drawing.drawIfDue();
    EXPECT_EQ(drawing.renders(), 1U);
}

TEST_F(DrawingTest, ignoresOneResumeTooMany) {
    EXPECT_FALSE(drawing.resume());
    EXPECT_EQ(drawing.suspensions(), 0);
    drawing.suspend();
    EXPECT_EQ(drawing.suspensions(), 1);
}

TEST_F(DrawingTest, redrawsAtOnceAtAnyDepthOfLocks) {
    locks.start(nullptr);
    drawing.mark();
    EXPECT_TRUE(drawing.redraw(false));
    EXPECT_TRUE(drawing.redraw(true));
    EXPECT_THAT(renderer.presented(), ElementsAre(false, true));
    EXPECT_FALSE(drawing.isMarked());
}

TEST_F(DrawingTest, redrawWhileSuspendedOnlyMarks) {
    drawing.suspend();
    EXPECT_FALSE(drawing.redraw(true));
    EXPECT_EQ(drawing.renders(), 0U);
    EXPECT_TRUE(drawing.isMarked());
}

TEST_F(DrawingTest, restoresTheDepthOfSuspensions) {
    drawing.suspend();
    drawing.suspend();
    drawing.mark();
    drawing.restoreSuspensions(0);
    EXPECT_EQ(drawing.suspensions(), 0);
    EXPECT_EQ(timer.requests(), 1U);
}

TEST_F(DrawingTest, aPictureNeitherMarksNorUnmarks) {
    const PictureRequest request{ExportRegion_WorkArea, 6, 4, 2};
    EXPECT_EQ(drawing.picture(request).width, 6);
    EXPECT_FALSE(drawing.isMarked());
    drawing.mark();
    drawing.suspend();
    drawing.picture(request);
    EXPECT_TRUE(drawing.isMarked());
    EXPECT_THAT(renderer.requests(), ElementsAre(request, request));
    EXPECT_EQ(drawing.renders(), 2U);
    EXPECT_TRUE(renderer.presented().empty());
}

TEST_F(DrawingTest, countsNoPictureThatFailed) {
    renderer.failAt(1);
    EXPECT_THROW(drawing.picture({ExportRegion_WorkArea, 6, 4, 1}), HostError);
    EXPECT_EQ(drawing.renders(), 0U);
}

TEST_F(DrawingTest, doesNotTryAFailedPictureAgain) {
    renderer.failAt(1);
    drawing.mark();
    EXPECT_THROW(drawing.drawIfDue(), HostError);
    EXPECT_NO_THROW(drawing.drawIfDue());
    EXPECT_EQ(renderer.renders(), 0U);
}

TEST_F(DrawingTest, makesNoPictureThatNobodySees) {
    Drawing unseen(page, locks, renderer, nullptr, nullptr);
    unseen.mark();
    unseen.drawIfDue();
    EXPECT_TRUE(unseen.isMarked());
    EXPECT_TRUE(unseen.redraw(true));
    EXPECT_FALSE(unseen.isMarked());
    EXPECT_EQ(unseen.renders(), 0U);
    EXPECT_EQ(renderer.renders(), 0U);
}

} // namespace
} // namespace corvane::host
