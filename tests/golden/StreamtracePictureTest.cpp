// Pictures of streamtraces around the cylinder, and of what travels along them.
#include "tests/golden/WakePicture.h"

#include <tuple>
#include <utility>

namespace corvane::test {

namespace {

/// As flights move the anchor: by a fifth of the interval between two markers for each picture.
constexpr double interval = 1.5;
constexpr double anchorStep = interval / 5.0;

} // namespace

class StreamtracePictureTest : public WakePicture {
protected:
    StreamtracePictureTest() {
        showBody();
        traces.show = true;
        traces.variable = "U";
        traces.seedStart = {-2.3, 0.15, 0.3};
        traces.seedEnd = {-2.3, 0.15, 4.6};
        traces.seedCount = 12;
        traces.radius = 0.06;
        timing.deltaTime = interval;
        // Nearer than the whole of the data asks for.
        const host::Vec3 centre{2.8, 0.0, 2.2};
        frame.view.position = centre + 0.58 * (frame.view.position - frame.data()->bounds.center());
    }

    /// All that travels along the traces, in front of the floor.
    void showAll() {
        showFloor();
        timing = {0.0, interval, true, true};
    }

    host::StreamtraceStyle& traces = frame.style.streamtraces;
    host::StreamTimingStyle& timing = frame.style.streamTiming;
};

/// Lines are one pixel wide, so that rounding moves all of one, not its edge.
constexpr GoldenLimits ofLines{.worst = 130};

TEST_F(StreamtracePictureTest, lines) {
    traces.tubes = false;
    traces.seedCount = 24;
    EXPECT_TRUE(matchesGolden("streamtrace-lines", picture(), ofLines));
}

TEST_F(StreamtracePictureTest, tubes) {
    EXPECT_TRUE(matchesGolden("streamtrace-tubes", picture()));
}

TEST_F(StreamtracePictureTest, tubesInOneColourFromAPlaneOfSeeds) {
    traces.seedKind = 2;
    traces.seedStart = {-2.3, -0.9, 0.5};
    traces.seedEnd = {-2.3, 0.9, 0.5};
    traces.seedCorner = {-2.3, -0.9, 4.5};
    traces.seedCount = 5;
    traces.useContour = false;
    traces.color = {0.2, 0.45, 0.75};
    EXPECT_TRUE(matchesGolden("streamtrace-plane", picture()));
}

TEST_F(StreamtracePictureTest, markersAtThreeAnchors) {
    timing.showMarkers = true;
    traces.radius = 0.035;
    traces.seedCount = 8;
    for (int i = 0; i < 3; ++i) {
        timing.timeAnchor = i * anchorStep;
        EXPECT_TRUE(matchesGolden("streamtrace-markers-" + std::to_string(i + 1), picture()));
    }
}

TEST_F(StreamtracePictureTest, dashesAtThreeAnchors) {
    timing.showDashes = true;
    for (int i = 0; i < 3; ++i) {
        timing.timeAnchor = i * anchorStep;
        EXPECT_TRUE(matchesGolden("streamtrace-dashes-" + std::to_string(i + 1), picture()));
    }
}

TEST_F(StreamtracePictureTest, dashedLines) {
    traces.tubes = false;
    timing.showDashes = true;
    EXPECT_TRUE(matchesGolden("streamtrace-dashed-lines", picture(), ofLines));
}

TEST_F(StreamtracePictureTest, fadeAtFiveLevels) {
    showVortices();
    const host::LightStyle full = frame.style.light;
    for (const int percent : {100, 75, 50, 25, 0}) {
        frame.style.light.intensity = full.intensity * percent / 100.0;
        frame.style.light.backgroundLight = full.backgroundLight * percent / 100.0;
        EXPECT_TRUE(matchesGolden("streamtrace-fade-" + std::to_string(percent), picture()));
    }
}

TEST_F(StreamtracePictureTest, twoSolutionTimes) {
    showFloor();
    for (const auto& [time, name] : {std::pair(1.8, "early"), std::pair(9.0, "late")}) {
        frame.solutionTime = time;
        EXPECT_TRUE(matchesGolden(std::string("streamtrace-time-") + name, picture()));
    }
}

TEST_F(StreamtracePictureTest, theWayToAPictureDoesNotShow) {
    scene::SceneRenderer renderer;
    showVortices();
    traces.tubes = false;
    traces.useContour = false;
    timing = {7.0, 0.4, true, true};
    frame.solutionTime = 10.2;
    frame.style.light = {100.0, 0.0};
    pictureBy(renderer);
    frame.style.isoSurfaces[0].show = false;
    traces.tubes = true;
    traces.useContour = true;
    frame.solutionTime = 3.6;
    frame.style.light = {};
    timing = {0.0, interval, false, true};
    for (int i = 0; i < 2; ++i) {
        pictureBy(renderer);
        timing.timeAnchor += anchorStep;
    }
    const host::Picture reached = pictureBy(renderer);
    EXPECT_TRUE(matchesGolden("streamtrace-dashes-3", reached));
    EXPECT_EQ(reached, picture());
}

TEST_F(StreamtracePictureTest, afterAFlightThePictureIsTheOneBefore) {
    showAll();
    scene::SceneRenderer renderer;
    const host::Picture before = pictureBy(renderer);
    const auto state = std::tuple(frame.view, frame.style, frame.solutionTime);
    for (int i = 1; i <= 4; ++i) {
        frame.view.theta += 20.0;
        frame.solutionTime += 0.6;
        timing.timeAnchor += anchorStep;
        frame.style.light.intensity *= 0.7;
        frame.style.light.backgroundLight *= 0.7;
        EXPECT_NE(pictureBy(renderer), before);
    }
    std::tie(frame.view, frame.style, frame.solutionTime) = state;
    const host::Picture after = pictureBy(renderer);
    EXPECT_EQ(after, before);
    EXPECT_TRUE(matchesGolden("streamtrace-all", after));
}

} // namespace corvane::test
