// Streamtraces: where they run, and what they know of their way.
#include "host/scene/geometry/StreamTraces.h"

#include "tests/unit/host/scene/SampleMeshes.h"
#include "tests/unit/host/scene/geometry/StreamSamples.h"

#include <gmock/gmock.h>

#include <vtkPointData.h>

#include <array>
#include <cmath>
#include <utility>

namespace corvane::test {

namespace {

using host::Vec3;

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
        scene::traceStreams(streamRecipe({0.25, 0.5, 0.2}, {0.25, 0.5, 0.8}, 4, 1), {flowBox()});
    EXPECT_EQ(forward->GetNumberOfLines(), 4);
    EXPECT_NEAR(timesOf(*forward).first, 0.0, 1e-6);
    EXPECT_NEAR(timesOf(*forward).last, 0.75 / flowSpeed, 0.09);
    for (vtkIdType i = 0; i < forward->GetNumberOfPoints(); ++i) {
        std::array<double, 3> point{};
        forward->GetPoint(i, point.data());
        const double time =
            forward->GetPointData()->GetArray(scene::integrationTimeName)->GetTuple1(i);
        ASSERT_NEAR(point[0], 0.25 + flowSpeed * time, 1e-6);
        ASSERT_NEAR(point[1], 0.5, 1e-6);
        ASSERT_NEAR(forward->GetPointData()->GetArray("T")->GetTuple1(i), point[0], 1e-6);
    }
}

TEST(StreamTraces, directions) {
    const Vec3 seed{0.6, 0.5, 0.5};
    const auto backward = scene::traceStreams(streamRecipe(seed, seed, 1, 2), {flowBox()});
    EXPECT_EQ(backward->GetNumberOfLines(), 1);
    EXPECT_NEAR(timesOf(*backward).first, -0.6 / flowSpeed, 0.09); // a step before the boundary
    EXPECT_NEAR(timesOf(*backward).last, 0.0, 1e-6);
    const auto both = scene::traceStreams(streamRecipe(seed, seed, 1, 3), {flowBox()});
    EXPECT_EQ(both->GetNumberOfLines(), 2);
    EXPECT_NEAR(timesOf(*both).first, -0.6 / flowSpeed, 0.09);
    EXPECT_NEAR(timesOf(*both).last, 0.4 / flowSpeed, 0.09);
}

TEST(StreamTraces, aPlaneOfSeeds) {
    auto plane = streamRecipe({0.1, 0.1, 0.1}, {0.1, 0.9, 0.1}, 3, 1);
    plane.seeds.kind = 2;
    plane.seeds.corner = {0.1, 0.1, 0.9};
    EXPECT_EQ(scene::traceStreams(plane, {flowBox()})->GetNumberOfLines(), 9);
}

TEST(StreamTraces, aListOfSeeds) {
    auto list = streamRecipe({}, {}, 1, 1);
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
        scene::traceStreams(streamRecipe({0.1, 0.6, 0.6}, {0.1, 0.6, 0.6}, 1, 1), {flowBox()});
    ASSERT_NE(trace->GetPointData()->GetArray("C"), nullptr);
    EXPECT_GT(trace->GetPointData()->GetArray("C")->GetTuple1(0), 1.0);
}

TEST(StreamTraces, takeAlongWhatAllMeshesHave) {
    const auto other = flowBox();
    other->GetPointData()->RemoveArray("V");
    const auto trace = scene::traceStreams(streamRecipe({0.1, 0.6, 0.6}, {0.1, 0.6, 0.6}, 1, 1),
                                           {flowBox(), other});
    EXPECT_EQ(trace->GetNumberOfLines(), 1);
    EXPECT_NE(trace->GetPointData()->GetArray("T"), nullptr);
    EXPECT_EQ(trace->GetPointData()->GetArray("V"), nullptr);
}

TEST(StreamTraces, endWhereTheFlowStands) {
    const auto mesh = flowBox();
    vtkDataArray& flow = *mesh->GetPointData()->GetArray("flow");
    for (vtkIdType i = 0; i < mesh->GetNumberOfPoints(); ++i) {
        if (mesh->GetPoint(i)[0] > 0.4) {
            flow.SetComponent(i, 0, 0.0);
        }
    }
    const auto traces =
        scene::traceStreams(streamRecipe({0.1, 0.5, 0.5}, {0.9, 0.5, 0.5}, 2, 1), {mesh});
    EXPECT_EQ(traces->GetNumberOfLines(), 1); // nothing starts where nothing moves
    for (vtkIdType i = 0; i < traces->GetNumberOfPoints(); ++i) {
        EXPECT_LT(traces->GetPoint(i)[0], 0.51);
    }
}

TEST(StreamTraces, endWhereTheFlowIsNotANumber) {
    const auto mesh = flowBox();
    vtkDataArray& flow = *mesh->GetPointData()->GetArray("flow");
    for (vtkIdType i = 0; i < mesh->GetNumberOfPoints(); ++i) {
        if (mesh->GetPoint(i)[0] > 0.6) {
            flow.SetComponent(i, 1, std::nan(""));
        }
    }
    const auto traces =
        scene::traceStreams(streamRecipe({0.1, 0.5, 0.5}, {0.9, 0.5, 0.5}, 2, 3), {mesh});
    EXPECT_GT(traces->GetNumberOfLines(), 0);
    for (vtkIdType i = 0; i < traces->GetNumberOfPoints(); ++i) {
        EXPECT_LT(traces->GetPoint(i)[0], 0.76);
    }
}

TEST(StreamTraces, vectorsOfCellsCountAsWell) {
    const auto traces =
        scene::traceStreams(streamRecipe({0.2, 0.5, 0.5}, {0.2, 0.5, 0.5}, 1, 1), {flowBox(true)});
    EXPECT_NEAR(timesOf(*traces).last, 0.8 / flowSpeed, 0.09);
}

TEST(StreamTraces, runFromMeshToMesh) {
    const auto second = flowBox();
    for (vtkIdType i = 0; i < second->GetNumberOfPoints(); ++i) {
        std::array<double, 3> point{};
        second->GetPoint(i, point.data());
        second->GetPoints()->SetPoint(i, point[0] + 1.0, point[1], point[2]);
    }
    const auto traces = scene::traceStreams(streamRecipe({0.2, 0.4, 0.4}, {0.2, 0.4, 0.4}, 1, 1),
                                            {flowBox(), nullptr, second});
    EXPECT_NEAR(timesOf(*traces).last, 1.8 / flowSpeed, 0.1);
}

TEST(StreamTraces, nothingToTrace) {
    const auto here = streamRecipe({0.5, 0.5, 0.5}, {0.5, 0.5, 0.5}, 1, 3);
    const auto outside = streamRecipe({5.0, 5.0, 5.0}, {6.0, 5.0, 5.0}, 3, 3);
    EXPECT_EQ(scene::traceStreams(here, {})->GetNumberOfLines(), 0);
    EXPECT_EQ(scene::traceStreams(here, {nullptr})->GetNumberOfLines(), 0);
    EXPECT_EQ(scene::traceStreams(here, {sampleGrid()})->GetNumberOfLines(), 0);
    EXPECT_EQ(scene::traceStreams(outside, {flowBox()})->GetNumberOfLines(), 0);
}

} // namespace corvane::test
