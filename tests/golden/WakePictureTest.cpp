// Pictures of the flow past the cylinder.
#include "host/core/Page.h"
#include "host/scene/DataReaders.h"
#include "host/scene/SceneRenderer.h"
#include "tests/golden/GoldenPicture.h"

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

constexpr int width = 320;
constexpr int height = 180;
constexpr std::size_t flow = 0; ///< blocks of the data
constexpr std::size_t body = 1;

} // namespace

class WakePictureTest : public testing::Test {
protected:
    WakePictureTest() : frame(page.createFrame({0.0, 0.0, 8.0, 4.5})) {
        frame.attachData(scene::DataReaders().read(
            {std::string(CORVANE_SOURCE_DIR) + "/examples/wake/wake.pvd"}));
        frame.style.annotations.showAxis = false;
        frame.style.annotations.showOutline = false;
        frame.style.contour.variable = "U";
        frame.style.contour.automaticRange = false;
        frame.style.contour.maximum = 1.4;
        frame.style.contour.showLegend = false;
        frame.solutionTime = 3.6;
        frame.view.psi = 65.0;
        frame.view.theta = -35.0;
        fit(frame.view, frame.data()->bounds, static_cast<double>(width) / height);
    }

    void showBody() { frame.style.surfaces.at(body) = {true, false, {0.8, 0.8, 0.8}, 1.0, false}; }
    void showVortices() { frame.style.isoSurfaces[0] = {true, "Q", 0.25, true, {}, 1.0}; }
    void showFloor() { frame.style.slices[0] = {true, 3, 0.05, true, {}, 1.0}; }

    host::Picture picture() {
        return scene::SceneRenderer().draw(page, {ExportRegion_WorkArea, width, height, 2});
    }

    host::Page page;
    host::Frame& frame;
};

TEST_F(WakePictureTest, surface) {
    frame.style.surfaces.at(flow) = {true, true, {}, 1.0, true};
    EXPECT_TRUE(matchesGolden("surface", picture()));
}

TEST_F(WakePictureTest, slice) {
    showBody();
    showFloor();
    frame.style.slices[1] = {true, 2, 0.0, true, {}, 1.0};
    frame.style.contour.colorMap = "CoolWarm";
    EXPECT_TRUE(matchesGolden("slice", picture()));
}

TEST_F(WakePictureTest, isosurface) {
    showBody();
    showVortices();
    EXPECT_TRUE(matchesGolden("isosurface", picture()));
}

TEST_F(WakePictureTest, legend) {
    showFloor();
    frame.style.contour.showLegend = true;
    frame.style.contour.variable = "p";
    frame.style.contour.automaticRange = true;
    frame.style.contour.colorMap = "Plasma";
    EXPECT_TRUE(matchesGolden("legend", picture()));
}

TEST_F(WakePictureTest, outlineAndAxis) {
    showBody();
    frame.style.annotations.showAxis = true;
    frame.style.annotations.showOutline = true;
    frame.view.alpha = 20.0;
    EXPECT_TRUE(matchesGolden("outline-and-axis", picture()));
}

TEST_F(WakePictureTest, translucency) {
    showBody();
    showVortices();
    frame.style.isoSurfaces[0].opacity = 0.45;
    frame.style.surfaces.at(flow) = {true, false, {0.4, 0.6, 0.9}, 0.15, false};
    frame.style.annotations.background = {0.12, 0.14, 0.18};
    EXPECT_TRUE(matchesGolden("translucency", picture()));
}

TEST_F(WakePictureTest, everything) {
    showBody();
    showVortices();
    showFloor();
    frame.style.annotations.showAxis = true;
    frame.style.annotations.showOutline = true;
    frame.style.annotations.showTime = true;
    frame.style.annotations.title = "Flow past a wall-mounted cylinder";
    frame.style.contour.showLegend = true;
    EXPECT_TRUE(matchesGolden("everything", picture()));
}

TEST_F(WakePictureTest, orthographicFromAbove) {
    showBody();
    showFloor();
    showVortices();
    frame.view.perspective = false;
    frame.view.psi = 0.0;
    frame.view.theta = 0.0;
    fit(frame.view, frame.data()->bounds, static_cast<double>(width) / height);
    EXPECT_TRUE(matchesGolden("from-above", picture()));
}

TEST_F(WakePictureTest, fadedLight) {
    showBody();
    showVortices();
    showFloor();
    frame.style.light = {25.0, 10.0};
    EXPECT_TRUE(matchesGolden("faded-light", picture()));
}

} // namespace corvane::test
