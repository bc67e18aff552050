// What plots look like: colours, opacity, lines, legend and texts.
#include "tests/unit/host/scene/SampleMeshes.h"
#include "tests/unit/host/scene/SceneTest.h"

#include "host/scene/style/ColorMaps.h"

#include <array>
#include <cmath>

namespace corvane::test {

namespace {

constexpr int width = 320;
constexpr int height = 180;

Rgb tableColor(const char* map, double part) {
    std::array<double, 3> color{};
    scene::makeColorMap(map)->GetColor(part, color.data());
    return {static_cast<int>(std::lround(255.0 * color[0])),
            static_cast<int>(std::lround(255.0 * color[1])),
            static_cast<int>(std::lround(255.0 * color[2]))};
}

int differingPixels(const host::Picture& a, const host::Picture& b) {
    int count = 0;
    for (int y = 0; y < a.height; ++y) {
        for (int x = 0; x < a.width; ++x) {
            count += pixelAt(a, x, y) == pixelAt(b, x, y) ? 0 : 1;
        }
    }
    return count;
}

} // namespace

class PlotAppearanceTest : public SceneTest {
protected:
    /// A slice through the box, seen straight from above; 160 pixels a unit, x = 0 at pixel 80.
    host::Frame& addSlice() {
        host::Frame& frame = addPlainFrame(load("box.vtu", sampleGrid()));
        frame.view.perspective = false;
        frame.view.position = {0.5, 0.5, 3.0};
        frame.view.width = 2.0;
        frame.style.slices[0] = {true, 3, 0.4, true, {}, 1.0};
        frame.style.light = {0.0, 100.0};
        frame.style.contour.variable = "T";
        return frame;
    }

    Rgb sliceAt(double x, double y) {
        return pixelAt(draw(width, height), static_cast<int>(80.0 + 160.0 * x),
                       static_cast<int>(90.0 - 160.0 * (y - 0.5)));
    }
};

TEST_F(PlotAppearanceTest, eachValueHasTheColourOfTheMap) {
    host::Frame& frame = addSlice();
    for (const char* map : {"Viridis", "Plasma", "CoolWarm", "Rainbow", "Gray"}) {
        frame.style.contour.colorMap = map;
        for (const double x : {0.1, 0.3, 0.55, 0.9}) {
            EXPECT_LE(largestDifference(sliceAt(x, 0.4), tableColor(map, x)), 4) << map << " " << x;
        }
    }
}

TEST_F(PlotAppearanceTest, theRangeCanBeChosen) {
    host::Frame& frame = addSlice();
    frame.style.contour.automaticRange = false;
    frame.style.contour.minimum = 0.2;
    frame.style.contour.maximum = 0.4;
    EXPECT_EQ(sliceAt(0.1, 0.5), tableColor("Viridis", 0.0));
    EXPECT_LE(largestDifference(sliceAt(0.3, 0.5), tableColor("Viridis", 0.5)), 8);
    EXPECT_EQ(sliceAt(0.9, 0.5), tableColor("Viridis", 1.0));
}

TEST_F(PlotAppearanceTest, lengthAndComponentsOfVectors) {
    host::Frame& frame = addSlice();
    const double x = 0.7;
    const double y = 0.3;
    frame.style.contour.variable = "V:Y";
    EXPECT_LE(largestDifference(sliceAt(x, y), tableColor("Viridis", y)), 4);
    frame.style.contour.variable = "V:Z";
    EXPECT_LE(largestDifference(sliceAt(x, y), tableColor("Viridis", 1.0 - 0.4)), 4);
    frame.style.contour.variable = "V";
    // At the nearest points of the mesh the length is exact, between them it is interpolated.
    const double length = std::sqrt(0.75 * 0.75 + 0.5 * 0.5 + 1.2 * 1.2);
    EXPECT_LE(
        largestDifference(sliceAt(0.75, 0.25), tableColor("Viridis", length / std::sqrt(14.0))), 6);
}

TEST_F(PlotAppearanceTest, valuesOfCells) {
    host::Frame& frame = addSlice();
    frame.style.contour.variable = "C";
    // The slice at z = 0.4 cuts the cells 16 to 31; at x = 0.6, y = 0.1 it is the third of them.
    EXPECT_LE(largestDifference(sliceAt(0.6, 0.1), tableColor("Viridis", 18.0 / 63.0)), 4);
    EXPECT_LE(largestDifference(sliceAt(0.1, 0.9), tableColor("Viridis", 28.0 / 63.0)), 4);
}

TEST_F(PlotAppearanceTest, anUnknownVariableLeavesThePlainColour) {
    host::Frame& frame = addSlice();
    frame.style.contour.variable = "nothing";
    frame.style.slices[0].color = {1.0, 0.0, 0.0};
    EXPECT_EQ(sliceAt(0.5, 0.5), (Rgb{255, 0, 0}));
}

TEST_F(PlotAppearanceTest, isosurfacesOfScalarsLengthsComponentsAndCells) {
    host::Frame& frame = addSlice();
    frame.style.slices[0].show = false;
    // Seen along +y, and turned a little: else planes across x would be seen edge-on.
    frame.view.psi = 90.0;
    frame.view.theta = 1.0;
    frame.view.position = {0.5 - 3.0 * 0.0174524, 0.5 - 3.0 * 0.9998477, 0.5};
    frame.style.isoSurfaces[0] = {true, "", 0.0, false, {1.0, 0.0, 0.0}, 1.0};
    const auto columnOfRed = [&](const char* variable, double value) {
        frame.style.isoSurfaces[0].variable = variable;
        frame.style.isoSurfaces[0].value = value;
        const auto center = centerOf(draw(width, height), [](const Rgb& color) {
            return color.red > 60 && color.green < 30 && color.blue < 30;
        });
        return center ? center->x : -1.0;
    };
    EXPECT_NEAR(columnOfRed("T", 0.25), 80.0 + 160.0 * 0.25, 4.0);
    EXPECT_NEAR(columnOfRed("V:X", 0.75), 80.0 + 160.0 * 0.75, 4.0);
    EXPECT_GT(columnOfRed("V", 1.0), 0.0);
    EXPECT_GT(columnOfRed("C", 30.0), 0.0);
    EXPECT_EQ(columnOfRed("T", 7.0), -1.0);
    EXPECT_EQ(columnOfRed("nothing", 0.0), -1.0);
}

TEST_F(PlotAppearanceTest, slicesInTheFacesOfTheMeshAreShown) {
    host::Frame& frame = addSlice();
    for (const double position : {0.0, 1.0}) {
        frame.style.slices[0].position = position;
        EXPECT_LE(largestDifference(sliceAt(0.3, 0.5), tableColor("Viridis", 0.3)), 4) << position;
    }
    frame.style.slices[0].position = 1.001;
    EXPECT_GT(sliceAt(0.3, 0.5).red, 200);
}

TEST_F(PlotAppearanceTest, onlyVolumesAreCut) {
    host::Frame& frame = addPlainFrame(load("cube.vtp", sampleCube({0.5, 0.5, 0.5}, 1.0)));
    frame.view.position = {0.5, 0.5, 3.0};
    frame.style.slices[0] = {true, 3, 0.5, false, {1.0, 0.0, 0.0}, 1.0};
    EXPECT_EQ(statistics->sliceRuns, 0);
    EXPECT_NE(pixelAt(draw(width, height), 160, 90), (Rgb{255, 0, 0}));
    EXPECT_EQ(statistics->sliceRuns, 0);
}

TEST_F(PlotAppearanceTest, translucentPlotsBlendInTheRightOrder) {
    host::Frame& frame = addSlice();
    frame.style.annotations.background = {0.0, 0.0, 0.0};
    frame.style.slices[0] = {true, 3, 0.2, false, {0.0, 0.0, 1.0}, 1.0};
    frame.style.slices[1] = {true, 3, 0.5, false, {0.0, 1.0, 0.0}, 0.5};
    frame.style.slices[2] = {true, 3, 0.8, false, {1.0, 0.0, 0.0}, 0.5};
    EXPECT_LE(largestDifference(sliceAt(0.5, 0.5), {128, 64, 64}), 2);
    frame.style.slices[1].position = 0.8;
    frame.style.slices[2].position = 0.5;
    EXPECT_LE(largestDifference(sliceAt(0.5, 0.5), {64, 128, 64}), 2);
    frame.style.slices[1].opacity = 0.0;
    EXPECT_LE(largestDifference(sliceAt(0.5, 0.5), {128, 0, 128}), 2);
}

TEST_F(PlotAppearanceTest, meshLinesAreThoseOfTheCells) {
    host::Frame& frame = addSlice();
    frame.style.slices[0].show = false;
    frame.style.surfaces[0] = {true, false, {1.0, 1.0, 1.0}, 1.0, true};
    const host::Picture picture = draw(width, height);
    for (const double x : {0.25, 0.5, 0.75}) {
        EXPECT_LT(pixelAt(picture, static_cast<int>(80.0 + 160.0 * x), 70).red, 150) << x;
    }
    for (const double x : {0.125, 0.375, 0.625, 0.875}) {
        EXPECT_EQ(pixelAt(picture, static_cast<int>(80.0 + 160.0 * x), 70), (Rgb{255, 255, 255}));
    }
}

TEST_F(PlotAppearanceTest, pointsWithoutCellsAreDrawn) {
    const auto cloud = vtkSmartPointer<vtkPolyData>::New();
    cloud->SetPoints(sampleCube({0.0, 0.0, 0.0}, 1.0)->GetPoints());
    const auto data = load("cloud.vtp", cloud);
    EXPECT_EQ(data->blocks[0].dimension, 0);
    host::Frame& frame = addPlainFrame(data);
    frame.view.position = {0.0, 0.0, 4.0};
    frame.style.surfaces[0] = {true, false, {1.0, 0.0, 0.0}, 1.0, false};
    EXPECT_TRUE(centerOf(draw(width, height),
                         [](const Rgb& color) { return color.red > 200 && color.green < 50; }));
}

TEST_F(PlotAppearanceTest, theBackgroundStartsWithItsColour) {
    addPlainFrame(nullptr, {0.0, 0.0, 8.0, 4.5}, {0.2, 0.4, 0.6});
    const host::Picture picture = draw(width, height);
    EXPECT_LE(largestDifference(pixelAt(picture, 10, height - 1), {51, 102, 153}), 1);
}

TEST_F(PlotAppearanceTest, annotationsAppearInTheirPlaces) {
    host::Frame& frame = addSlice();
    const host::Picture bare = draw(width, height);
    const auto rightPart = [&](const host::Picture& picture) {
        return centerOf(picture, [&, i = 0](const Rgb&) mutable {
            const int x = i % width;
            const int y = i / width;
            ++i;
            return pixelAt(picture, x, y) != pixelAt(bare, x, y);
        });
    };
    frame.style.contour.showLegend = true;
    auto changed = rightPart(draw(width, height));
    ASSERT_TRUE(changed);
    EXPECT_GT(changed->x, 0.85 * width);
    EXPECT_NEAR(changed->y, 0.5 * height, 0.1 * height);
    frame.style.contour.showLegend = false;

    frame.style.annotations.title = "Title";
    changed = rightPart(draw(width, height));
    ASSERT_TRUE(changed);
    EXPECT_NEAR(changed->x, 0.5 * width, 3.0);
    EXPECT_LT(changed->y, 0.12 * height);
    frame.style.annotations.title.clear();

    frame.style.annotations.showTime = true;
    changed = rightPart(draw(width, height));
    ASSERT_TRUE(changed);
    EXPECT_LT(changed->x, 0.15 * width);
    EXPECT_LT(changed->y, 0.12 * height);
    frame.style.annotations.showTime = false;

    frame.style.annotations.showAxis = true;
    changed = rightPart(draw(width, height));
    ASSERT_TRUE(changed);
    EXPECT_LT(changed->x, 0.15 * width);
    EXPECT_GT(changed->y, 0.8 * height);
    frame.style.annotations.showAxis = false;

    frame.style.annotations.showOutline = true;
    EXPECT_GT(differingPixels(draw(width, height), bare), 100);
}

TEST_F(PlotAppearanceTest, theLegendKeepsAwayFromTheEdges) {
    host::Frame& frame = addSlice();
    frame.style.contour.showLegend = true;
    frame.style.contour.automaticRange = false;
    frame.style.contour.minimum = 101324.0;
    frame.style.contour.maximum = 101325.0;
    frame.style.slices[0].opacity = 0.001; // shown, but hardly to be seen
    const host::Picture picture = draw(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = width - 3; x < width; ++x) {
            ASSERT_EQ(pixelAt(picture, x, y), pixelAt(picture, 0, y)) << x << " " << y;
        }
    }
}

TEST_F(PlotAppearanceTest, noLegendWithoutAPlotThatUsesIt) {
    host::Frame& frame = addSlice();
    frame.style.slices[0].useContour = false;
    const host::Picture bare = draw(width, height);
    frame.style.contour.showLegend = true;
    EXPECT_EQ(draw(width, height), bare);
}

TEST_F(PlotAppearanceTest, textIsReadableOnDarkAndLight) {
    host::Frame& frame = addPlainFrame(nullptr);
    frame.style.annotations.title = "MMMM";
    const auto darkest = [&] {
        int value = 255;
        const host::Picture picture = draw(width, height);
        for (int y = 0; y < 30; ++y) {
            for (int x = 100; x < 220; ++x) {
                value = std::min(value, pixelAt(picture, x, y).red);
            }
        }
        return value;
    };
    const auto lightest = [&] {
        int value = 0;
        const host::Picture picture = draw(width, height);
        for (int y = 0; y < 30; ++y) {
            for (int x = 100; x < 220; ++x) {
                value = std::max(value, pixelAt(picture, x, y).red);
            }
        }
        return value;
    };
    EXPECT_LT(darkest(), 90);
    frame.style.annotations.background = {0.1, 0.1, 0.1};
    EXPECT_GT(lightest(), 190);
}

} // namespace corvane::test
