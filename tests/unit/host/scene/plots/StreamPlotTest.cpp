// Pictures of streamtraces, and of the dashes and markers that travel along them.
#include "tests/unit/host/scene/SampleMeshes.h"
#include "tests/unit/host/scene/SceneTest.h"
#include "tests/unit/host/scene/geometry/StreamSamples.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace corvane::test {

namespace {

constexpr int width = 320;
constexpr int height = 180;

} // namespace

class StreamPlotTest : public SceneTest {
protected:
    /// One trace from x = 0.1 on, seen straight from above; 160 pixels a unit, x = 0 at pixel 80.
    void SetUp() override {
        m_frame = &addPlainFrame(load("flow.vtu", flowBox()));
        m_frame->view.perspective = false;
        m_frame->view.position = {0.5, 0.5, 3.0};
        m_frame->view.width = 2.0;
        m_frame->style.light = {0.0, 100.0};
        host::StreamtraceStyle& style = m_frame->style.streamtraces;
        style.show = true;
        style.variable = "flow";
        style.seedStart = {0.1, 0.5, 0.5};
        style.seedEnd = style.seedStart;
        style.seedCount = 1;
        style.direction = 1;
        style.useContour = false;
        style.color = {1.0, 0.0, 0.0};
        style.radius = 0.02;
    }

    host::Frame& frame() { return *m_frame; }
    host::StreamTimingStyle& timing() { return m_frame->style.streamTiming; }

    /// Whether the trace is seen at x in the picture.
    static bool isRedAt(const host::Picture& picture, double x) {
        const Rgb color = pixelAt(picture, static_cast<int>(std::floor(80.0 + 160.0 * x)), 90);
        return color.red > 200 && color.green < 60;
    }

    /// With dashes of 0.1 and gaps of 0.1 that start at the seed, shifted by part of a period.
    void expectDashes(double shift) {
        const host::Picture picture = draw(width, height);
        for (double x = 0.11; x < 0.97; x += 0.01) {
            const double phase = (x - 0.1) / 0.2 - shift;
            const double part = phase - std::floor(phase);
            if (std::min({part, std::abs(part - 0.5), 1.0 - part}) > 0.07) {
                EXPECT_EQ(isRedAt(picture, x), part < 0.5) << x << " shifted by " << shift;
            }
        }
    }

private:
    host::Frame* m_frame = nullptr;
};

TEST_F(StreamPlotTest, tubesAndLines) {
    for (const bool tubes : {true, false}) {
        frame().style.streamtraces.tubes = tubes;
        const host::Picture picture = draw(width, height);
        for (double x = 0.12; x < 0.97; x += 0.05) {
            EXPECT_TRUE(isRedAt(picture, x)) << x;
        }
        EXPECT_FALSE(isRedAt(picture, 0.05));
    }
}

TEST_F(StreamPlotTest, theRadiusIsTheOneAskedFor) {
    frame().style.streamtraces.radius = 0.1;
    const host::Picture picture = draw(width, height);
    const int x = 160;
    EXPECT_GT(pixelAt(picture, x, 90 + 14).red, 200);
    EXPECT_LT(pixelAt(picture, x, 90 + 14).green, 60);
    EXPECT_GT(pixelAt(picture, x, 90 + 18).green, 200);
}

TEST_F(StreamPlotTest, dashesTravelWithTheAnchor) {
    timing() = {0.0, 0.2 / flowSpeed, false, true};
    for (const bool tubes : {true, false}) {
        SCOPED_TRACE(tubes ? "tubes" : "lines");
        frame().style.streamtraces.tubes = tubes;
        for (const double shift : {0.0, 0.25, 0.5, 3.75, 1e6 + 0.5, -2.25}) {
            timing().timeAnchor = shift * timing().deltaTime;
            expectDashes(shift);
        }
    }
}

TEST_F(StreamPlotTest, dashesInPicturesOfWideLines) {
    frame().style.streamtraces.tubes = false;
    timing() = {0.0, 0.2 / flowSpeed, false, true};
    const host::Picture large = draw(8 * width, 8 * height);
    EXPECT_EQ(pixelAt(large, 8 * (80 + 24), 8 * 90), (Rgb{255, 0, 0}));
    EXPECT_GT(pixelAt(large, 8 * (80 + 40), 8 * 90).green, 200);
}

TEST_F(StreamPlotTest, markersTravelWithTheAnchor) {
    timing() = {0.0, 5.0, true, false};
    frame().style.streamtraces.radius = 0.01;
    for (const double anchor : {0.4, 1.2}) {
        timing().timeAnchor = anchor;
        const host::Picture picture = draw(width, height);
        // What is red beside the tube is the marker.
        const auto center = centerOf(picture, [&, i = 0](const Rgb& color) mutable {
            const int y = i++ / width;
            return (y < 87 || y > 92) && color.red > 200 && color.green < 60;
        });
        ASSERT_TRUE(center.has_value());
        EXPECT_NEAR(center->x, 80.0 + 160.0 * (0.1 + flowSpeed * anchor), 1.0);
        EXPECT_NEAR(center->y, 90.0, 1.0);
    }
}

TEST_F(StreamPlotTest, coloursOfValues) {
    frame().style.streamtraces.useContour = true;
    frame().style.contour.variable = "T";
    frame().style.contour.colorMap = "Gray";
    const host::Picture picture = draw(width, height);
    EXPECT_NEAR(pixelAt(picture, 80 + 80, 90).red, 119, 8); // half way in lightness
    EXPECT_GT(pixelAt(picture, 80 + 140, 90).red, 190);
}

TEST_F(StreamPlotTest, withoutAnyLightEverythingIsBlack) {
    frame().style.light = {0.0, 0.0};
    timing().showMarkers = true;
    for (const bool tubes : {true, false}) {
        frame().style.streamtraces.tubes = tubes;
        EXPECT_EQ(pixelAt(draw(width, height), 160, 90), Rgb{}) << tubes;
    }
}

TEST_F(StreamPlotTest, withHalfOfTheLightEverythingIsHalfAsBright) {
    timing() = {0.8, 5.0, true, true};
    for (const bool tubes : {true, false}) {
        frame().style.streamtraces.tubes = tubes;
        frame().style.light = {0.0, 100.0};
        const host::Picture bright = draw(width, height);
        frame().style.light = {0.0, 50.0};
        const host::Picture half = draw(width, height);
        int colored = 0;
        for (int x = 0; x < width; ++x) {
            const Rgb full = pixelAt(bright, x, 90);
            if (full.green > 60) {
                continue;
            }
            ++colored;
            EXPECT_LE(largestDifference(pixelAt(half, x, 90), scaled(full, 0.5)), 1) << x;
        }
        EXPECT_GT(colored, 20);
    }
}

TEST_F(StreamPlotTest, whatCannotBeTracedDrawsNothing) {
    timing() = {0.0, 0.1, true, true};
    frame().style.streamtraces.show = false;
    const host::Picture empty = draw(width, height);
    frame().style.streamtraces.show = true;
    EXPECT_NE(draw(width, height), empty);
    EXPECT_TRUE(warnings.empty());
    for (const char* variable : {"", "nothing", "T", "C"}) {
        frame().style.streamtraces.variable = variable;
        EXPECT_EQ(draw(width, height), empty) << variable;
    }
    EXPECT_EQ(warnings.size(), 1U) << "not for every picture";
    EXPECT_THAT(warnings.front(), testing::HasSubstr("choose a vector variable"));
    frame().style.streamtraces.variable = "flow";
    draw(width, height);
    frame().style.streamtraces.seedStart = {5.0, 5.0, 5.0};
    frame().style.streamtraces.seedEnd = {6.0, 5.0, 5.0};
    EXPECT_EQ(draw(width, height), empty);
    ASSERT_EQ(warnings.size(), 2U);
    EXPECT_THAT(warnings.back(), testing::HasSubstr("no seed lies inside"));
    frame().attachData(load("cube.vtp", sampleCube({0.5, 0.5, 0.5}, 1.0)));
    EXPECT_EQ(draw(width, height), empty);
    frame().attachData(nullptr);
    EXPECT_EQ(draw(width, height), empty);
}

TEST_F(StreamPlotTest, onlyWhatTracesDependOnTracesAgain) {
    draw(width, height);
    EXPECT_EQ(statistics->streamRuns, 1);
    timing() = {0.3, 0.4, true, true};
    draw(width, height);
    timing().timeAnchor = 0.5;
    frame().style.streamtraces.tubes = false;
    frame().style.streamtraces.radius = 0.05;
    frame().style.streamtraces.useContour = true;
    frame().view.psi = 20.0;
    draw(width, height);
    frame().style.streamtraces.show = false;
    draw(width, height);
    frame().style.streamtraces.show = true;
    draw(width, height);
    EXPECT_EQ(statistics->streamRuns, 1);
    EXPECT_EQ(statistics->tubeRuns, 1);
    frame().style.streamtraces.seedCount = 2;
    draw(width, height);
    EXPECT_EQ(statistics->streamRuns, 2);
}

TEST_F(StreamPlotTest, picturesHaveNoHistory) {
    const host::Picture plain = draw(width, height);
    timing() = {0.3, 0.4, true, true};
    const host::Picture dashed = draw(width, height);
    EXPECT_NE(dashed, plain);
    timing().timeAnchor = 0.5;
    EXPECT_NE(draw(width, height), dashed);
    timing().timeAnchor = 0.3;
    EXPECT_EQ(draw(width, height), dashed);
    timing() = {};
    EXPECT_EQ(draw(width, height), plain);
}

} // namespace corvane::test
