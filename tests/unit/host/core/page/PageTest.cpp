// Tests of the stack of frames and the scale of the paper.
#include "host/core/page/Page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace corvane::host {
namespace {

using testing::ElementsAre;

class PageTest : public testing::Test {
protected:
    std::vector<long> order() const {
        std::vector<long> ids;
        for (const auto& frame : page.frames()) {
            ids.push_back(frame->id());
        }
        return ids;
    }
    long activeId() const { return page.active() != nullptr ? page.active()->id() : 0; }
    void createThree() {
        page.createFrame({0, 0, 4, 3});
        page.createFrame({1, 1, 4, 3});
        page.createFrame({2, 2, 4, 3});
    }

    Page page;
};

TEST_F(PageTest, stacksNewFramesOnTopAndActivatesThem) {
    createThree();
    EXPECT_THAT(order(), ElementsAre(3, 2, 1));
    EXPECT_EQ(activeId(), 3);
    EXPECT_EQ(page.find(2)->placement.x, 1);
    EXPECT_EQ(page.find(7), nullptr);
}

TEST_F(PageTest, neverUsesAnIdAgain) {
    createThree();
    EXPECT_TRUE(page.deleteFrame(3));
    EXPECT_EQ(page.createFrame({}).id(), 4);
}

TEST_F(PageTest, theFrameBelowADeletedOneBecomesActive) {
    createThree();
    page.activate(2);
    EXPECT_TRUE(page.deleteFrame(2));
    EXPECT_EQ(activeId(), 1);
    EXPECT_TRUE(page.deleteFrame(1));
    EXPECT_EQ(activeId(), 3) << "none is below, so the top one";
    EXPECT_TRUE(page.deleteFrame(3));
    EXPECT_EQ(page.active(), nullptr);
    EXPECT_FALSE(page.deleteFrame(3));
}

TEST_F(PageTest, deletingAnotherFrameKeepsTheActiveOne) {
    createThree();
    page.deleteFrame(2);
    EXPECT_EQ(activeId(), 3);
}

TEST_F(PageTest, activatesWithoutRestacking) {
    createThree();
    EXPECT_TRUE(page.activate(1));
    EXPECT_EQ(activeId(), 1);
    EXPECT_THAT(order(), ElementsAre(3, 2, 1));
    EXPECT_FALSE(page.activate(9));
    EXPECT_EQ(activeId(), 1);
    EXPECT_TRUE(page.activateTop());
    EXPECT_EQ(activeId(), 3);
}

TEST_F(PageTest, pushingAsOftenAsThereAreFramesVisitsAllAndRestoresTheOrder) {
    createThree();
    page.activate(1);
    std::vector<long> visited;
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(page.pushTop());
        visited.push_back(activeId());
    }
    EXPECT_THAT(visited, ElementsAre(2, 1, 3));
    EXPECT_THAT(order(), ElementsAre(3, 2, 1));
}

TEST_F(PageTest, withoutFramesNothingCanBeActivated) {
    EXPECT_FALSE(page.activateTop());
    EXPECT_FALSE(page.pushTop());
    EXPECT_FALSE(page.activate(0));
    page.startWalk();
    EXPECT_EQ(page.current(), nullptr);
    EXPECT_FALSE(page.nextOfWalk());
    page.endWalk();
}

TEST_F(PageTest, aWalkLooksAtAllFramesAndChangesNothing) {
    createThree();
    page.activate(2);
    std::vector<long> visited;
    page.startWalk();
    do {
        visited.push_back(page.current()->id());
    } while (page.nextOfWalk());
    EXPECT_THAT(visited, ElementsAre(3, 2, 1));
    EXPECT_FALSE(page.nextOfWalk());
    EXPECT_EQ(activeId(), 2);
    page.endWalk();
    EXPECT_EQ(page.current()->id(), 2);
    EXPECT_FALSE(page.nextOfWalk());
    EXPECT_THAT(order(), ElementsAre(3, 2, 1));
}

TEST_F(PageTest, aWalkEndsWhenFramesComeOrGo) {
    createThree();
    page.startWalk();
    page.nextOfWalk();
    page.nextOfWalk();
    page.deleteFrame(1);
    EXPECT_EQ(page.current()->id(), 3);
    page.startWalk();
    page.nextOfWalk();
    page.createFrame({});
    EXPECT_EQ(page.current()->id(), 4);
}

TEST_F(PageTest, wholePixelsComeOutWhole) {
    for (const double pixelsPerInch : {72.0, 96.0, 133.33333333333334, 160.0, 213.7}) {
        page.workArea.pixelsPerInch = pixelsPerInch;
        for (int pixels = 1; pixels < 5000; ++pixels) {
            ASSERT_EQ(page.toPixels(page.toInches(pixels)), pixels) << pixelsPerInch;
        }
    }
}

TEST_F(PageTest, keepsFractionsOfPixels) {
    page.workArea.pixelsPerInch = 100.0;
    EXPECT_DOUBLE_EQ(page.toPixels(0.125), 12.5);
    EXPECT_DOUBLE_EQ(page.toPixels(8.00001), 800.001);
    EXPECT_EQ(page.toPixels(0.0), 0.0);
    EXPECT_DOUBLE_EQ(page.toPixels(1e-15), 1e-13);
}

TEST_F(PageTest, oneFrameThatFillsTheWorkAreaGoesOnFillingIt) {
    EXPECT_TRUE(page.isFilledByOneFrame());
    page.createFrame(page.regionOf(ExportRegion_WorkArea));
    page.resizeWorkArea({1000, 1000, 125.0});
    EXPECT_EQ(page.active()->placement, (Placement{0, 0, 8, 8}));
    EXPECT_TRUE(page.isFilledByOneFrame());
}

TEST_F(PageTest, otherFramesKeepTheirPlaces) {
    page.createFrame({0, 0, 4, 4.5});
    page.resizeWorkArea({1000, 1000, 125.0});
    EXPECT_EQ(page.active()->placement, (Placement{0, 0, 4, 4.5}));
    page.createFrame({0, 0, 8, 8});
    page.resizeWorkArea({1000, 500, 125.0});
    EXPECT_EQ(page.active()->placement, (Placement{0, 0, 8, 8}));
    EXPECT_FALSE(page.isFilledByOneFrame());
}

TEST_F(PageTest, regionsCoverWhatTheyShow) {
    page.workArea = {1280, 720, 160.0};
    const Placement area{0, 0, 8, 4.5};
    EXPECT_EQ(page.regionOf(ExportRegion_CurrentFrame), area);
    EXPECT_EQ(page.regionOf(ExportRegion_AllFrames), area);
    page.createFrame({1, 2, 3, 4});
    page.createFrame({-1, 3, 1, 5});
    page.activate(1);
    EXPECT_EQ(page.regionOf(ExportRegion_CurrentFrame), (Placement{1, 2, 3, 4}));
    EXPECT_EQ(page.regionOf(ExportRegion_AllFrames), (Placement{-1, 2, 5, 6}));
    EXPECT_EQ(page.regionOf(ExportRegion_WorkArea), area);
}

} // namespace
} // namespace corvane::host
