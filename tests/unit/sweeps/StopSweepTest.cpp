// The user stops each kind of flight at each check that it makes.
#include "tests/unit/sweeps/Aftermath.h"
#include "tests/unit/sweeps/Flights.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace corvane::test {
namespace {

using testing::HasSubstr;

class StopSweep : public testing::TestWithParam<FlightKind> {};

std::size_t checksOf(const FlightKind& kind) {
    FlightScene scene;
    kind.prepare(scene, kind);
    EXPECT_EQ(kind.play(scene, kind), "");
    return scene.host.count("CorUtilStatusCheckPercentDone");
}

void stopAt(std::size_t k, const FlightKind& kind) {
    const std::string what = kind.name + ", stop " + std::to_string(k);
    FlightScene scene;
    kind.prepare(scene, kind);
    const Appearance before(scene.host);
    scene.host.program().recorder().start();
    scene.host.stopAtCheck(k);
    EXPECT_THAT(kind.play(scene, kind), HasSubstr("Animation canceled.")) << what;
    expectAtRest(scene, what);
    expectSame(Appearance(scene.host), before, what);
    EXPECT_FALSE(scene.folder.has("flight.avi")) << what;
    EXPECT_THAT(scene.host.recordedCommands(), testing::IsEmpty()) << what;
    EXPECT_THAT(scene.host.misuse(), testing::IsEmpty()) << what;
    expectPlays(scene, kind, what);
}

TEST_P(StopSweep, leavesNothingBehind) {
    const FlightKind& kind = GetParam();
    const std::size_t checks = checksOf(kind);
    // One for each view but the last one of a segment, and one for each frame.
    ASSERT_EQ(checks, kind.frames - 2 + kind.frames);
    for (std::size_t k = 1; k <= checks; ++k) {
        stopAt(k, kind);
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, StopSweep, testing::ValuesIn(flightKinds()),
                         [](const auto& kind) { return kind.param.name; });

} // namespace
} // namespace corvane::test
