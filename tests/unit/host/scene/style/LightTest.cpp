// Light and darkness.
#include "tests/unit/host/scene/SampleMeshes.h"
#include "tests/unit/host/scene/SceneTest.h"

namespace corvane::test {

namespace {

constexpr int width = 160;
constexpr int height = 90;

} // namespace

class LightTest : public SceneTest {
protected:
    /// The box seen straight from above: the top fills the picture.
    host::Frame& addBox() {
        host::Frame& frame = addPlainFrame(load("box.vtu", sampleGrid()));
        frame.view.perspective = false;
        frame.view.position = {0.5, 0.5, 3.0};
        frame.view.width = 0.8;
        frame.style.contour.variable = "T";
        frame.style.surfaces[0].color = {0.2, 0.6, 0.9};
        return frame;
    }

    Rgb middle() { return pixelAt(draw(width, height), width / 2, height / 2); }
};

TEST_F(LightTest, withoutAnyLightEverythingIsBlack) {
    host::Frame& frame = addBox();
    frame.style.light = {0.0, 0.0};
    const Rgb black;
    frame.style.surfaces[0].show = true;
    EXPECT_EQ(middle(), black) << "plain surface";
    frame.style.surfaces[0].useContour = true;
    EXPECT_EQ(middle(), black) << "coloured surface";
    frame.style.surfaces[0].showMesh = true;
    for (int x = 0; x < width; ++x) {
        ASSERT_EQ(pixelAt(draw(width, height), x, height / 2), black) << "mesh lines at " << x;
    }
    frame.style.surfaces[0].show = false;

    frame.style.slices[0] = {true, 3, 0.5, true, {}, 1.0};
    EXPECT_EQ(middle(), black) << "coloured slice";
    frame.style.slices[0].useContour = false;
    EXPECT_EQ(middle(), black) << "plain slice";
    frame.style.slices[0].show = false;

    frame.style.isoSurfaces[0] = {true, "V:Z", -1.5, true, {}, 1.0};
    EXPECT_EQ(middle(), black) << "coloured isosurface";
    frame.style.isoSurfaces[0].useContour = false;
    EXPECT_EQ(middle(), black) << "plain isosurface";
    frame.style.isoSurfaces[0].opacity = 0.999;
    EXPECT_LE(largestDifference(middle(), black), 1) << "translucent isosurface";
}

TEST_F(LightTest, backgroundLightAloneGivesTheColourItself) {
    host::Frame& frame = addBox();
    frame.style.surfaces[0].show = true;
    const Rgb plain{51, 153, 230};
    frame.style.light = {0.0, 100.0};
    EXPECT_LE(largestDifference(middle(), plain), 1);
    frame.style.light = {0.0, 50.0};
    EXPECT_LE(largestDifference(middle(), scaled(plain, 0.5)), 1);
    frame.style.light = {0.0, 10.0};
    EXPECT_LE(largestDifference(middle(), scaled(plain, 0.1)), 1);
}

TEST_F(LightTest, coloursOfValuesStayRightWhileTheLightFades) {
    host::Frame& frame = addBox();
    frame.style.surfaces[0].show = true;
    frame.style.surfaces[0].useContour = true;
    const Rgb viridisMiddle{33, 145, 140};
    frame.style.light = {0.0, 100.0};
    EXPECT_LE(largestDifference(middle(), viridisMiddle), 3);
    for (const double part : {0.6, 0.3, 0.1}) {
        frame.style.light = {0.0, 100.0 * part};
        EXPECT_LE(largestDifference(middle(), scaled(viridisMiddle, part)), 2) << part;
    }
}

TEST_F(LightTest, theDirectionalLightFadesEvenly) {
    host::Frame& frame = addBox();
    frame.style.surfaces[0].show = true;
    frame.style.light = {60.0, 0.0};
    const Rgb full = middle();
    EXPECT_GT(full.blue, 90);
    frame.style.light = {30.0, 0.0};
    EXPECT_LE(largestDifference(middle(), scaled(full, 0.5)), 1);
}

TEST_F(LightTest, theLightMovesWithTheViewer) {
    host::Frame& frame = addBox();
    frame.style.surfaces[0].show = true;
    const Rgb fromAbove = middle();
    frame.view.psi = 90.0;
    frame.view.position = {0.5, -3.0, 0.5};
    EXPECT_EQ(middle(), fromAbove);
    frame.view.theta = 90.0;
    frame.view.position = {-3.0, 0.5, 0.5};
    EXPECT_EQ(middle(), fromAbove);
}

TEST_F(LightTest, slicesHaveTheColoursOfTheLegendFromWhereverOneLooks) {
    host::Frame& frame = addBox();
    frame.style.slices[0] = {true, 3, 0.5, true, {}, 1.0};
    const Rgb fromAbove = middle();
    EXPECT_LE(largestDifference(fromAbove, {33, 145, 140}), 3);
    frame.view.psi = 60.0;
    frame.view.position = {0.5, 0.5 - 3.0 * 0.8660254, 0.5 + 1.5};
    EXPECT_LE(largestDifference(middle(), fromAbove), 1);
}

TEST_F(LightTest, theOutlineFadesToo) {
    host::Frame& frame = addBox();
    frame.view.width = 4.0;
    frame.style.annotations.background = {0.0, 0.0, 0.0};
    frame.style.annotations.showOutline = true;
    const auto brightest = [this] {
        int value = 0;
        const host::Picture picture = draw(width, height);
        for (int x = 0; x < width; ++x) {
            value = std::max(value, pixelAt(picture, x, height / 2).red);
        }
        return value;
    };
    const int bright = brightest();
    EXPECT_GT(bright, 100);
    frame.style.light = {0.0, 0.0};
    EXPECT_LT(brightest(), 40);
}

} // namespace corvane::test
