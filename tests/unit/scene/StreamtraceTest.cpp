// Streamtraces, and the dashes and markers that travel along them.
#include "host/scene/StreamMarkers.h"
#include "host/scene/StreamTraces.h"
#include "tests/unit/scene/SampleMeshes.h"
#include "tests/unit/scene/SceneTest.h"

#include <gmock/gmock.h>

#include <vtkCellData.h>
#include <vtkDoubleArray.h>
#include <vtkNew.h>
#include <vtkPointData.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <ostream>
#include <utility>
#include <vector>

namespace corvane::test {

namespace {

using host::Vec3;

constexpr int width = 320;
constexpr int height = 180;
constexpr double speed = 0.5;

/// The box with a flow along +x everywhere, given at the points or at the cells.
vtkSmartPointer<vtkUnstructuredGrid> flowBox(bool atCells = false) {
    const auto grid = sampleGrid();
    const vtkNew<vtkDoubleArray> flow;
    flow->SetName("flow");
    flow->SetNumberOfComponents(3);
    flow->SetNumberOfTuples(atCells ? grid->GetNumberOfCells() : grid->GetNumberOfPoints());
    flow->Fill(0.0);
    flow->FillComponent(0, speed);
    if (atCells)
        grid->GetCellData()->AddArray(flow);
    else
        grid->GetPointData()->AddArray(flow);
    return grid;
}

scene::StreamRecipe recipe(const Vec3& start, const Vec3& end, int count, int direction) {
    host::StreamtraceStyle style;
    style.variable = "flow";
    style.seedStart = start;
    style.seedEnd = end;
    style.seedCount = count;
    style.direction = direction;
    return scene::streamRecipe(style, {});
}

struct TimeRange {
    double first = 0.0;
    double last = 0.0;
};

TimeRange timesOf(vtkPolyData& traces) {
    std::array<double, 2> range{};
    traces.GetPointData()->GetArray(scene::integrationTimeName)->GetRange(range.data());
    return {range[0], range[1]};
}

} // namespace

TEST(StreamTraces, runWithTheFlowAndKnowTheirTime) {
    const auto forward =
        scene::traceStreams(recipe({0.25, 0.5, 0.2}, {0.25, 0.5, 0.8}, 4, 1), {flowBox()});
    EXPECT_EQ(forward->GetNumberOfLines(), 4);
    EXPECT_NEAR(timesOf(*forward).first, 0.0, 1e-6);
    EXPECT_NEAR(timesOf(*forward).last, 0.75 / speed, 0.09);
    for (vtkIdType i = 0; i < forward->GetNumberOfPoints(); ++i) {
        std::array<double, 3> point{};
        forward->GetPoint(i, point.data());
        const double time =
            forward->GetPointData()->GetArray(scene::integrationTimeName)->GetTuple1(i);
        ASSERT_NEAR(point[0], 0.25 + speed * time, 1e-6);
        ASSERT_NEAR(point[1], 0.5, 1e-6);
        ASSERT_NEAR(forward->GetPointData()->GetArray("T")->GetTuple1(i), point[0], 1e-6);
    }
}

TEST(StreamTraces, directions) {
    const Vec3 seed{0.6, 0.5, 0.5};
    const auto backward = scene::traceStreams(recipe(seed, seed, 1, 2), {flowBox()});
    EXPECT_EQ(backward->GetNumberOfLines(), 1);
    EXPECT_NEAR(timesOf(*backward).first, -0.6 / speed, 0.09); // a step before the boundary
    EXPECT_NEAR(timesOf(*backward).last, 0.0, 1e-6);
    const auto both = scene::traceStreams(recipe(seed, seed, 1, 3), {flowBox()});
    EXPECT_EQ(both->GetNumberOfLines(), 2);
    EXPECT_NEAR(timesOf(*both).first, -0.6 / speed, 0.09);
    EXPECT_NEAR(timesOf(*both).last, 0.4 / speed, 0.09);
}

TEST(StreamTraces, aPlaneOfSeeds) {
    auto plane = recipe({0.1, 0.1, 0.1}, {0.1, 0.9, 0.1}, 3, 1);
    plane.seeds.kind = 2;
    plane.seeds.corner = {0.1, 0.1, 0.9};
    EXPECT_EQ(scene::traceStreams(plane, {flowBox()})->GetNumberOfLines(), 9);
}

TEST(StreamTraces, aListOfSeeds) {
    auto list = recipe({}, {}, 1, 1);
    list.seeds.kind = 3;
    for (const auto& [text, lines] : {std::pair("0.1 0.2 0.3; 0.1 0.4 0.3; 0.1 0.6 9", 2),
                                      std::pair("", 0), std::pair("0.1 0.2", 0)}) {
        list.seeds.points = text;
        EXPECT_EQ(scene::traceStreams(list, {flowBox()})->GetNumberOfLines(), lines) << text;
    }
    list.seeds.points = "0.1 0.2 0.3";
    const auto trace = scene::traceStreams(list, {flowBox()});
    EXPECT_NEAR(trace->GetPoint(0)[0], 0.1, 1e-6);
    EXPECT_NEAR(trace->GetPoint(0)[1], 0.2, 1e-6);
    EXPECT_NEAR(trace->GetPoint(0)[2], 0.3, 1e-6);
}

TEST(StreamTraces, takeTheValuesOfCellsAlong) {
    const auto trace =
        scene::traceStreams(recipe({0.1, 0.6, 0.6}, {0.1, 0.6, 0.6}, 1, 1), {flowBox()});
    ASSERT_NE(trace->GetPointData()->GetArray("C"), nullptr);
    EXPECT_GT(trace->GetPointData()->GetArray("C")->GetTuple1(0), 1.0);
}

TEST(StreamTraces, takeAlongWhatAllMeshesHave) {
    const auto other = flowBox();
    other->GetPointData()->RemoveArray("V");
    const auto trace =
        scene::traceStreams(recipe({0.1, 0.6, 0.6}, {0.1, 0.6, 0.6}, 1, 1), {flowBox(), other});
    EXPECT_EQ(trace->GetNumberOfLines(), 1);
    EXPECT_NE(trace->GetPointData()->GetArray("T"), nullptr);
    EXPECT_EQ(trace->GetPointData()->GetArray("V"), nullptr);
}

TEST(StreamTraces, endWhereTheFlowStands) {
    const auto mesh = flowBox();
    vtkDataArray& flow = *mesh->GetPointData()->GetArray("flow");
    for (vtkIdType i = 0; i < mesh->GetNumberOfPoints(); ++i)
        if (mesh->GetPoint(i)[0] > 0.4)
            flow.SetComponent(i, 0, 0.0);
    const auto traces = scene::traceStreams(recipe({0.1, 0.5, 0.5}, {0.9, 0.5, 0.5}, 2, 1), {mesh});
    EXPECT_EQ(traces->GetNumberOfLines(), 1); // nothing starts where nothing moves
    for (vtkIdType i = 0; i < traces->GetNumberOfPoints(); ++i)
        EXPECT_LT(traces->GetPoint(i)[0], 0.51);
}

TEST(StreamTraces, endWhereTheFlowIsNotANumber) {
    const auto mesh = flowBox();
    vtkDataArray& flow = *mesh->GetPointData()->GetArray("flow");
    for (vtkIdType i = 0; i < mesh->GetNumberOfPoints(); ++i)
        if (mesh->GetPoint(i)[0] > 0.6)
            flow.SetComponent(i, 1, std::nan(""));
    const auto traces = scene::traceStreams(recipe({0.1, 0.5, 0.5}, {0.9, 0.5, 0.5}, 2, 3), {mesh});
    EXPECT_GT(traces->GetNumberOfLines(), 0);
    for (vtkIdType i = 0; i < traces->GetNumberOfPoints(); ++i)
        EXPECT_LT(traces->GetPoint(i)[0], 0.76);
}

TEST(StreamTraces, vectorsOfCellsCountAsWell) {
    const auto traces =
        scene::traceStreams(recipe({0.2, 0.5, 0.5}, {0.2, 0.5, 0.5}, 1, 1), {flowBox(true)});
    EXPECT_NEAR(timesOf(*traces).last, 0.8 / speed, 0.09);
}

TEST(StreamTraces, runFromMeshToMesh) {
    const auto second = flowBox();
    for (vtkIdType i = 0; i < second->GetNumberOfPoints(); ++i) {
        std::array<double, 3> point{};
        second->GetPoint(i, point.data());
        second->GetPoints()->SetPoint(i, point[0] + 1.0, point[1], point[2]);
    }
    const auto traces = scene::traceStreams(recipe({0.2, 0.4, 0.4}, {0.2, 0.4, 0.4}, 1, 1),
                                            {flowBox(), nullptr, second});
    EXPECT_NEAR(timesOf(*traces).last, 1.8 / speed, 0.1);
}

TEST(StreamTraces, nothingToTrace) {
    const auto here = recipe({0.5, 0.5, 0.5}, {0.5, 0.5, 0.5}, 1, 3);
    const auto outside = recipe({5.0, 5.0, 5.0}, {6.0, 5.0, 5.0}, 3, 3);
    EXPECT_EQ(scene::traceStreams(here, {})->GetNumberOfLines(), 0);
    EXPECT_EQ(scene::traceStreams(here, {nullptr})->GetNumberOfLines(), 0);
    EXPECT_EQ(scene::traceStreams(here, {sampleGrid()})->GetNumberOfLines(), 0);
    EXPECT_EQ(scene::traceStreams(outside, {flowBox()})->GetNumberOfLines(), 0);
}

TEST(StreamMarkers, standAtTheirTimes) {
    const auto traces =
        scene::traceStreams(recipe({0.5, 0.5, 0.5}, {0.5, 0.5, 0.5}, 1, 3), {flowBox()});
    const double interval = 0.3;
    for (const double anchor : {0.0, 0.1, -7.0, 1000.0}) {
        const auto markers = scene::markersOn(*traces, anchor, interval);
        // The box is 1 / speed long in time.
        EXPECT_NEAR(static_cast<double>(markers->GetNumberOfPoints()), 1.0 / speed / interval, 1.0);
        for (vtkIdType i = 0; i < markers->GetNumberOfPoints(); ++i) {
            std::array<double, 3> point{};
            markers->GetPoint(i, point.data());
            const double k = ((point[0] - 0.5) / speed - anchor) / interval;
            EXPECT_NEAR(k, std::round(k), 1e-4) << anchor;
            EXPECT_NEAR(markers->GetPointData()->GetArray("T")->GetTuple1(i), point[0], 1e-5);
        }
    }
}

TEST(StreamMarkers, eachTimeHasOneMarker) {
    const auto traces =
        scene::traceStreams(recipe({0.5, 0.5, 0.5}, {0.5, 0.5, 0.5}, 1, 3), {flowBox()});
    const auto markers = scene::markersOn(*traces, 0.0, 0.1);
    std::vector<double> places;
    for (vtkIdType i = 0; i < markers->GetNumberOfPoints(); ++i)
        places.push_back(markers->GetPoint(i)[0]);
    std::sort(places.begin(), places.end());
    for (std::size_t i = 1; i < places.size(); ++i)
        EXPECT_NEAR(places[i] - places[i - 1], 0.1 * speed, 1e-5);
}

TEST(StreamMarkers, anIntervalOfNothingEnds) {
    const auto traces =
        scene::traceStreams(recipe({0.5, 0.5, 0.5}, {0.5, 0.5, 0.5}, 1, 3), {flowBox()});
    const auto markers = scene::markersOn(*traces, 1e300, 1e-12);
    EXPECT_NEAR(static_cast<double>(markers->GetNumberOfPoints()), 20000.0, 10.0);
    EXPECT_LT(markers->GetBounds()[0], 0.1); // on all of the way
    EXPECT_GT(markers->GetBounds()[1], 0.9);
    EXPECT_EQ(scene::markersOn(*traces, 1.0, 1e-320)->GetNumberOfPoints(), 0);
}

class StreamtraceTest : public SceneTest {
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

TEST_F(StreamtraceTest, tubesAndLines) {
    for (const bool tubes : {true, false}) {
        frame().style.streamtraces.tubes = tubes;
        const host::Picture picture = draw(width, height);
        for (double x = 0.12; x < 0.97; x += 0.05)
            EXPECT_TRUE(isRedAt(picture, x)) << x;
        EXPECT_FALSE(isRedAt(picture, 0.05));
    }
}

TEST_F(StreamtraceTest, theRadiusIsTheOneAskedFor) {
    frame().style.streamtraces.radius = 0.1;
    const host::Picture picture = draw(width, height);
    const int x = 160;
    EXPECT_GT(pixelAt(picture, x, 90 + 14).red, 200);
    EXPECT_LT(pixelAt(picture, x, 90 + 14).green, 60);
    EXPECT_GT(pixelAt(picture, x, 90 + 18).green, 200);
}

TEST_F(StreamtraceTest, dashesTravelWithTheAnchor) {
    timing() = {0.0, 0.2 / speed, false, true};
    for (const bool tubes : {true, false}) {
        SCOPED_TRACE(tubes ? "tubes" : "lines");
        frame().style.streamtraces.tubes = tubes;
        for (const double shift : {0.0, 0.25, 0.5, 3.75, 1e6 + 0.5, -2.25}) {
            timing().timeAnchor = shift * timing().deltaTime;
            expectDashes(shift);
        }
    }
}

TEST_F(StreamtraceTest, dashesInPicturesOfWideLines) {
    frame().style.streamtraces.tubes = false;
    timing() = {0.0, 0.2 / speed, false, true};
    const host::Picture large = draw(8 * width, 8 * height);
    EXPECT_EQ(pixelAt(large, 8 * (80 + 24), 8 * 90), (Rgb{255, 0, 0}));
    EXPECT_GT(pixelAt(large, 8 * (80 + 40), 8 * 90).green, 200);
}

TEST_F(StreamtraceTest, markersTravelWithTheAnchor) {
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
        EXPECT_NEAR(center->x, 80.0 + 160.0 * (0.1 + speed * anchor), 1.0);
        EXPECT_NEAR(center->y, 90.0, 1.0);
    }
}

TEST_F(StreamtraceTest, coloursOfValues) {
    frame().style.streamtraces.useContour = true;
    frame().style.contour.variable = "T";
    frame().style.contour.colorMap = "Gray";
    const host::Picture picture = draw(width, height);
    EXPECT_NEAR(pixelAt(picture, 80 + 80, 90).red, 119, 8); // half way in lightness
    EXPECT_GT(pixelAt(picture, 80 + 140, 90).red, 190);
}

TEST_F(StreamtraceTest, withoutAnyLightEverythingIsBlack) {
    frame().style.light = {0.0, 0.0};
    timing().showMarkers = true;
    for (const bool tubes : {true, false}) {
        frame().style.streamtraces.tubes = tubes;
        EXPECT_EQ(pixelAt(draw(width, height), 160, 90), Rgb{}) << tubes;
    }
}

TEST_F(StreamtraceTest, withHalfOfTheLightEverythingIsHalfAsBright) {
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
            if (full.green > 60)
                continue;
            ++colored;
            EXPECT_LE(largestDifference(pixelAt(half, x, 90), scaled(full, 0.5)), 1) << x;
        }
        EXPECT_GT(colored, 20);
    }
}

TEST_F(StreamtraceTest, whatCannotBeTracedDrawsNothing) {
    timing() = {0.0, 0.1, true, true};
    frame().style.streamtraces.show = false;
    std::vector<std::string> warnings;
    renderer.onWarning = [&](const std::string& sentence) { warnings.push_back(sentence); };
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

TEST_F(StreamtraceTest, onlyWhatTracesDependOnTracesAgain) {
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

TEST_F(StreamtraceTest, picturesHaveNoHistory) {
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

/// What the next picture costs, with traces, dashes and markers in data that change with time.
class StreamtraceCostTest : public SceneTest {
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

TEST_F(StreamtraceCostTest, anAnchorAndAnIntervalCostNothing) {
    for (int i = 0; i < 10; ++i) {
        frame().style.streamTiming.timeAnchor += 0.04;
        EXPECT_EQ(cost(), Counts{});
    }
    frame().style.streamTiming.deltaTime = 0.3;
    EXPECT_EQ(cost(), Counts{});
}

TEST_F(StreamtraceCostTest, cameraLightAndColoursCostNothing) {
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

TEST_F(StreamtraceCostTest, aRadiusCostsTubesAlone) {
    frame().style.streamtraces.radius = 0.05;
    EXPECT_EQ(cost(), (Counts{0, 1}));
    frame().style.streamtraces.tubes = false;
    EXPECT_EQ(cost(), Counts{});
}

TEST_F(StreamtraceCostTest, aTimeCostsOneIntegrationAndOneForTheNext) {
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
