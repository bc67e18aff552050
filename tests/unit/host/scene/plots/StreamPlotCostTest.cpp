// What streamtraces cost from picture to picture.
#include "tests/unit/host/scene/SceneTest.h"

#include <gmock/gmock.h>

#include <ostream>
#include <utility>

namespace corvane::test {

namespace {

constexpr int width = 320;
constexpr int height = 180;

} // namespace

/// What the next picture costs, with traces, dashes and markers in data that change with time.
class StreamPlotCostTest : public SceneTest {
protected:
    struct Counts {
        long traces = 0;
        long tubes = 0;

        friend bool operator==(const Counts&, const Counts&) = default;
        friend std::ostream& operator<<(std::ostream& stream, const Counts& counts) {
            return stream << counts.traces << " integrations, " << counts.tubes << " tubes";
        }
    };

    void SetUp() override {
        m_frame = &addPlainFrame(loadSeries(5));
        m_frame->view.position = {0.5, 0.5, 4.0};
        host::StreamtraceStyle& style = m_frame->style.streamtraces;
        style.show = true;
        style.variable = "V";
        style.seedStart = {0.2, 0.2, 0.8};
        style.seedEnd = {0.8, 0.2, 0.8};
        style.seedCount = 5;
        style.useContour = false;
        m_frame->style.streamTiming = {0.0, 0.2, true, true};
        EXPECT_EQ(cost(), (Counts{1, 1}));
    }

    host::Frame& frame() { return *m_frame; }

    /// Fails when the picture stays the same.
    Counts cost() {
        const Counts before = now();
        host::Picture picture = draw(width, height);
        renderer.waitForReadAhead();
        EXPECT_NE(picture, m_last);
        m_last = std::move(picture);
        const Counts after = now();
        return {after.traces - before.traces, after.tubes - before.tubes};
    }

private:
    Counts now() const { return {statistics->streamRuns, statistics->tubeRuns}; }

    host::Frame* m_frame = nullptr;
    host::Picture m_last;
};

TEST_F(StreamPlotCostTest, anAnchorAndAnIntervalCostNothing) {
    for (int i = 0; i < 10; ++i) {
        frame().style.streamTiming.timeAnchor += 0.04;
        EXPECT_EQ(cost(), Counts{});
    }
    frame().style.streamTiming.deltaTime = 0.3;
    EXPECT_EQ(cost(), Counts{});
}

TEST_F(StreamPlotCostTest, cameraLightAndColoursCostNothing) {
    frame().view.theta = 30.0;
    EXPECT_EQ(cost(), Counts{});
    frame().style.light = {20.0, 10.0};
    EXPECT_EQ(cost(), Counts{});
    frame().style.streamtraces.color = {0.0, 0.5, 0.0};
    EXPECT_EQ(cost(), Counts{});
    frame().style.contour.variable = "T";
    frame().style.streamtraces.useContour = true;
    EXPECT_EQ(cost(), Counts{});
}

TEST_F(StreamPlotCostTest, aRadiusCostsTubesAlone) {
    frame().style.streamtraces.radius = 0.05;
    EXPECT_EQ(cost(), (Counts{0, 1}));
    frame().style.streamtraces.tubes = false;
    EXPECT_EQ(cost(), Counts{});
}

TEST_F(StreamPlotCostTest, aTimeCostsOneIntegrationAndOneForTheNext) {
    frame().style.streamtraces.useContour = true;
    frame().style.contour.variable = "T"; // grows with time
    EXPECT_EQ(cost(), Counts{});
    frame().solutionTime = 1.0;
    EXPECT_EQ(cost(), (Counts{2, 2}));
    frame().solutionTime = 2.0;
    EXPECT_EQ(cost(), (Counts{1, 1}));
    frame().solutionTime = 3.0;
    frame().style.streamtraces.tubes = false;
    EXPECT_EQ(cost(), (Counts{1, 0}));
}

} // namespace corvane::test
