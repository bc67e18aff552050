// Tests of the first picture of data.
#include "host/core/page/Frame.h"

#include "tests/support/MemoryHost.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace corvane::host {
namespace {

class DefaultPlotsTest : public testing::Test {
protected:
    void choose() {
        frame.attachData(data);
        chooseDefaultPlots(frame);
    }
    long shownSlices() const {
        return std::count_if(frame.style.slices.begin(), frame.style.slices.end(),
                             [](const SliceStyle& slice) { return slice.show; });
    }

    Frame frame{1, Placement{0, 0, 8, 4.5}};
    std::shared_ptr<DataSet> data = test::makeVolumeData();
};

TEST_F(DefaultPlotsTest, volumesShowOneSliceAcrossTheirShortestExtent) {
    choose();
    EXPECT_EQ(shownSlices(), 1);
    EXPECT_TRUE(frame.style.slices[0].show);
    EXPECT_EQ(frame.style.slices[0].axis, 3);
    EXPECT_EQ(frame.style.slices[0].position, 0.5);
    EXPECT_TRUE(frame.style.slices[0].useContour);
    EXPECT_TRUE(frame.style.annotations.showOutline);
    EXPECT_FALSE(frame.style.surfaces[0].show);
}

TEST_F(DefaultPlotsTest, theSliceFollowsTheShapeOfTheData) {
    data->bounds = {{0, -1, 0}, {3, 0, 2}};
    choose();
    EXPECT_EQ(frame.style.slices[0].axis, 2);
    EXPECT_EQ(frame.style.slices[0].position, -0.5);
    data->bounds = {{0, 0, 0}, {1, 3, 2}};
    choose();
    EXPECT_EQ(frame.style.slices[0].axis, 1);
}

TEST_F(DefaultPlotsTest, aCubeIsSlicedAcrossZ) {
    data->bounds = {{0, 0, 0.1}, {0.2, 0.2, 0.3}}; // 0.3 - 0.1 is a little below 0.2
    choose();
    EXPECT_EQ(frame.style.slices[0].axis, 3);
    data->bounds = {{0, 0, 0}, {0.2, 0.2, 0.2 * (1 + 1e-12)}};
    choose();
    EXPECT_EQ(frame.style.slices[0].axis, 3);
}

TEST_F(DefaultPlotsTest, coloursFollowTheFirstVector) {
    data->variables = {{"p", 1, 0, 1}, {"U", 3, 0, 8}, {"W", 3, 0, 9}};
    choose();
    EXPECT_EQ(frame.style.contour.variable, "U");
    EXPECT_TRUE(frame.style.contour.showLegend);
    EXPECT_TRUE(frame.style.contour.automaticRange);
    EXPECT_EQ(frame.style.contour.maximum, 8);
}

TEST_F(DefaultPlotsTest, coloursFollowTheFirstScalarWithoutAVector) {
    data->variables = {{"tensor", 9, 0, 1}, {"p", 1, 0, 1}, {"q", 1, 0, 1}};
    choose();
    EXPECT_EQ(frame.style.contour.variable, "p");
    EXPECT_TRUE(frame.style.streamtraces.variable.empty());
}

TEST_F(DefaultPlotsTest, withoutVariablesThereIsNoLegendAndNoColouring) {
    data->variables.clear();
    data->blocks.push_back({"wall", 2});
    choose();
    EXPECT_FALSE(frame.style.contour.showLegend);
    EXPECT_FALSE(frame.style.slices[0].useContour);
    EXPECT_FALSE(frame.style.surfaces[1].useContour);
}

TEST_F(DefaultPlotsTest, surfacesBesideVolumesAreGrey) {
    data->blocks = {{"internal", 3}, {"wall", 2}};
    choose();
    EXPECT_FALSE(frame.style.surfaces[0].show);
    EXPECT_TRUE(frame.style.surfaces[1].show);
    EXPECT_FALSE(frame.style.surfaces[1].useContour);
    EXPECT_EQ(frame.style.surfaces[1].color, Color{});
}

TEST_F(DefaultPlotsTest, surfacesAloneAreColoured) {
    data->blocks = {{"hull", 2}, {"sail", 2}};
    choose();
    EXPECT_TRUE(frame.style.surfaces[0].show);
    EXPECT_TRUE(frame.style.surfaces[1].useContour);
    EXPECT_EQ(shownSlices(), 0);
    EXPECT_FALSE(frame.style.annotations.showOutline);
}

TEST_F(DefaultPlotsTest, showsTheTimeOfTransientDataFromTheFirstStep) {
    data->zones = {{0, -5.0, 0, true}, {0, 3.0, 1, false}, {0, 4.0, 1, true}, {0, 5.0, 1, true}};
    choose();
    EXPECT_TRUE(frame.style.annotations.showTime);
    EXPECT_EQ(frame.solutionTime, 4.0);
}

TEST_F(DefaultPlotsTest, staticDataShowNoTime) {
    data->zones = {{0, 2.5, 0, true}};
    choose();
    EXPECT_FALSE(frame.style.annotations.showTime);
    EXPECT_EQ(frame.solutionTime, 2.5);
}

TEST_F(DefaultPlotsTest, viewsTheDataFromAboveAndFitsThem) {
    frame.view.psi = 1;
    frame.view.perspective = false;
    choose();
    View3D expected;
    expected.psi = 65;
    expected.theta = 30;
    fit(expected, data->bounds, 8 / 4.5);
    EXPECT_EQ(frame.view, expected);
    EXPECT_TRUE(frame.view.perspective);
    EXPECT_EQ(frame.view.rotationOrigin, data->bounds.center());
}

TEST_F(DefaultPlotsTest, whatIsNotShownIsReadyToBeShown) {
    choose();
    for (const SliceStyle& slice : frame.style.slices) {
        EXPECT_EQ(slice.position, 0.5);
    }
    for (const IsoSurfaceStyle& surface : frame.style.isoSurfaces) {
        EXPECT_FALSE(surface.show);
        EXPECT_EQ(surface.variable, "p");
        EXPECT_EQ(surface.value, 1.0);
    }
    EXPECT_FALSE(frame.style.streamtraces.show);
    EXPECT_EQ(frame.style.streamtraces.variable, "U");
    EXPECT_GT(frame.style.streamTiming.deltaTime, 0.0);
}

TEST_F(DefaultPlotsTest, seedsStandAcrossTheLongestExtentThroughTheCentre) {
    choose();
    const StreamtraceStyle& traces = frame.style.streamtraces;
    EXPECT_EQ(0.5 * (traces.seedStart + traces.seedEnd), data->bounds.center());
    EXPECT_EQ(traces.seedStart.x, traces.seedEnd.x);
    EXPECT_NEAR(length(traces.seedEnd - traces.seedStart), 0.8 * 2, 1e-12);
    EXPECT_NEAR(dot(traces.seedCorner - traces.seedStart, traces.seedEnd - traces.seedStart), 0.0,
                1e-12);
    EXPECT_GT(length(traces.seedCorner - traces.seedStart), 0.1);
}

TEST_F(DefaultPlotsTest, forgetsThePlotsOfOtherDataAndKeepsTaste) {
    choose();
    frame.style.slices[4].show = true;
    frame.style.streamtraces.show = true;
    frame.style.annotations.title = "old";
    frame.style.contour.colorMap = "Gray";
    frame.style.annotations.background = {0, 0, 0};
    frame.style.light.intensity = 10;
    choose();
    EXPECT_EQ(shownSlices(), 1);
    EXPECT_FALSE(frame.style.streamtraces.show);
    EXPECT_TRUE(frame.style.annotations.title.empty());
    EXPECT_EQ(frame.style.contour.colorMap, "Viridis");
    EXPECT_EQ(frame.style.annotations.background, (Color{0, 0, 0}));
    EXPECT_EQ(frame.style.light.intensity, 10);
}

TEST_F(DefaultPlotsTest, thePathsStillReachTheValuesAfterwards) {
    choose();
    EXPECT_EQ(frame.styles().set({"Surface", "1", "Show"}, 1L), StyleSet_Ok);
    EXPECT_TRUE(frame.style.surfaces[0].show);
    EXPECT_EQ(frame.styles().set({"Contour", "ShowLegend"}, 0L), StyleSet_Ok);
    EXPECT_FALSE(frame.style.contour.showLegend);
}

TEST_F(DefaultPlotsTest, emptyDataLeaveFiniteValues) {
    data = std::make_shared<DataSet>();
    choose();
    EXPECT_TRUE(isFinite(frame.view.position));
    EXPECT_TRUE(std::isfinite(frame.style.slices[0].position));
    EXPECT_TRUE(isFinite(frame.style.streamtraces.seedStart));
    EXPECT_EQ(frame.solutionTime, 0.0);
}

TEST_F(DefaultPlotsTest, withoutDataNothingChanges) {
    const FrameStyle style = frame.style;
    frame.view.psi = 12;
    chooseDefaultPlots(frame);
    EXPECT_EQ(frame.style, style);
    EXPECT_EQ(frame.view.psi, 12);
}

} // namespace
} // namespace corvane::host
