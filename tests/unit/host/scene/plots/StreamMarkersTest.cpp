// Markers on streamtraces, one at each time.
#include "host/scene/plots/StreamMarkers.h"

#include "host/scene/geometry/StreamTraces.h"
#include "tests/unit/host/scene/geometry/StreamSamples.h"

#include <gmock/gmock.h>

#include <vtkPointData.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace corvane::test {

TEST(StreamMarkers, standAtTheirTimes) {
    const auto traces =
        scene::traceStreams(streamRecipe({0.5, 0.5, 0.5}, {0.5, 0.5, 0.5}, 1, 3), {flowBox()});
    const double interval = 0.3;
    for (const double anchor : {0.0, 0.1, -7.0, 1000.0}) {
        const auto markers = scene::markersOn(*traces, anchor, interval);
        // The box is 1 / flowSpeed long in time.
        EXPECT_NEAR(static_cast<double>(markers->GetNumberOfPoints()), 1.0 / flowSpeed / interval,
                    1.0);
        for (vtkIdType i = 0; i < markers->GetNumberOfPoints(); ++i) {
            std::array<double, 3> point{};
            markers->GetPoint(i, point.data());
            const double k = ((point[0] - 0.5) / flowSpeed - anchor) / interval;
            EXPECT_NEAR(k, std::round(k), 1e-4) << anchor;
            EXPECT_NEAR(markers->GetPointData()->GetArray("T")->GetTuple1(i), point[0], 1e-5);
        }
    }
}

TEST(StreamMarkers, eachTimeHasOneMarker) {
    const auto traces =
        scene::traceStreams(streamRecipe({0.5, 0.5, 0.5}, {0.5, 0.5, 0.5}, 1, 3), {flowBox()});
    const auto markers = scene::markersOn(*traces, 0.0, 0.1);
    std::vector<double> places;
    for (vtkIdType i = 0; i < markers->GetNumberOfPoints(); ++i) {
        places.push_back(markers->GetPoint(i)[0]);
    }
    std::sort(places.begin(), places.end());
    for (std::size_t i = 1; i < places.size(); ++i) {
        EXPECT_NEAR(places[i] - places[i - 1], 0.1 * flowSpeed, 1e-5);
    }
}

TEST(StreamMarkers, anIntervalOfNothingEnds) {
    const auto traces =
        scene::traceStreams(streamRecipe({0.5, 0.5, 0.5}, {0.5, 0.5, 0.5}, 1, 3), {flowBox()});
    const auto markers = scene::markersOn(*traces, 1e300, 1e-12);
    EXPECT_NEAR(static_cast<double>(markers->GetNumberOfPoints()), 20000.0, 10.0);
    EXPECT_LT(markers->GetBounds()[0], 0.1); // on all of the way
    EXPECT_GT(markers->GetBounds()[1], 0.9);
    EXPECT_EQ(scene::markersOn(*traces, 1.0, 1e-320)->GetNumberOfPoints(), 0);
}

} // namespace corvane::test
