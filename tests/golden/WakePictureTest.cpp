// Pictures of the flow past the cylinder.
#include "tests/golden/WakePicture.h"

namespace corvane::test {

using WakePictureTest = WakePicture;

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
