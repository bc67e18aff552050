// One step of the host's camera.
#include "addon/engine/ViewStep.h"

#include "addon/base/KeyFrameError.h"
#include "tests/cases/FlightCases.h"
#include "tests/unit/addon/EngineTest.h"

#include <stdexcept>

namespace corvane::test {
namespace {

using corutiltools::KeyFrameError;
using corutiltools::StepTowards;
using corutiltools::View;

class ViewStepTest : public EngineTest {
protected:
    const View from = viewOfCentre(60.0, 240.0, 0.0, 10.0, 4.0);
    const View target = viewOfCentre(70.0, 300.0, -40.0, 5.0, 2.0);
};

const std::vector<std::string> applyCalls{
    "CorUtilLockStart",  "CorUtilLockStart",          "CorUtilDrawGraphics(FALSE)",
    "CorUtilStyleSet",   "CorUtilStyleSet",           "CorUtilStyleSet",
    "CorUtilStyleSet",   "CorUtilStyleSet",           "CorUtilStyleSet",
    "CorUtilStyleGet",   "CorUtilStyleSet",           "CorUtilStyleSet",
    "CorUtilStyleSet",   "CorUtilDrawGraphics(TRUE)", "CorUtilLockFinish",
    "CorUtilLockFinish",
};

const std::vector<std::string> rotateAndReadCalls{
    "CorUtilViewRotate3D",
    "CorUtilViewRotate3D",
    "CorUtilViewRotate3D",
    "CorUtilFrameGetPlotType",
    "CorUtilThreeDViewGetViewerPos",
    "CorUtilThreeDViewGetViewerAngle",
    "CorUtilThreeDViewGetProjection",
};

std::vector<std::string> joined(const std::vector<std::vector<std::string>>& parts) {
    std::vector<std::string> result;
    for (const auto& part : parts) {
        result.insert(result.end(), part.begin(), part.end());
    }
    return result;
}

TEST_F(ViewStepTest, callsTheHostInOrder) {
    StepTowards(from, target, 2.0);
    EXPECT_THAT(callNames(),
                ElementsAreArray(joined({
                    applyCalls,
                    {"CorUtilLockStart"},
                    rotateAndReadCalls,
                    {"CorUtilLockFinish"},
                    applyCalls,
                    {"CorUtilLockStart", "CorUtilLockStart", "CorUtilDrawGraphics(FALSE)"},
                    rotateAndReadCalls,
                    {"CorUtilStyleSet", "CorUtilStyleSet", "CorUtilStyleSet", "CorUtilStyleGet",
                     "CorUtilStyleSet", "CorUtilStyleSet", "CorUtilStyleSet",
                     "CorUtilDrawGraphics(TRUE)", "CorUtilLockFinish", "CorUtilLockFinish"},
                    {"CorUtilFrameGetPlotType", "CorUtilThreeDViewGetViewerPos",
                     "CorUtilThreeDViewGetViewerAngle", "CorUtilThreeDViewGetProjection"},
                })));
}

TEST_F(ViewStepTest, turnsByAlphaThenPsiThenTheta) {
    StepTowards(from, target, 2.0);
    EXPECT_THAT(
        callsTo("CorUtilViewRotate3D"),
        ElementsAre(
            "CorUtilViewRotate3D(5, -40, 0, 0, 0, 0)", "CorUtilViewRotate3D(3, 10, 0, 0, 0, 0)",
            "CorUtilViewRotate3D(4, 60, 0, 0, 0, 0)", "CorUtilViewRotate3D(5, -20, 0, 0, 0, 0)",
            "CorUtilViewRotate3D(3, 5, 0, 0, 0, 0)", "CorUtilViewRotate3D(4, 30, 0, 0, 0, 0)"));
}

TEST_F(ViewStepTest, writesPositionAndThenWidthWithoutPerspective) {
    view().perspective = true;
    StepTowards(from, target, 2.0);
    auto writes = callsTo("CorUtilStyleSet");
    ASSERT_EQ(writes.size(), 9u + 9u + 6u);
    writes.erase(writes.begin(), writes.begin() + 18);
    EXPECT_THAT(
        writes,
        ElementsAre(
            testing::StartsWith(R"(CorUtilStyleSet("ThreeDView","ViewerPosition","X", DValue=)"),
            testing::StartsWith(R"(CorUtilStyleSet("ThreeDView","ViewerPosition","Y", DValue=)"),
            testing::StartsWith(R"(CorUtilStyleSet("ThreeDView","ViewerPosition","Z", DValue=)"),
            R"(CorUtilStyleSet("ThreeDView","DrawInPerspective", IValue=0, DValue=0))",
            R"(CorUtilStyleSet("ThreeDView","ViewWidth", DValue=3))",
            R"(CorUtilStyleSet("ThreeDView","DrawInPerspective", IValue=1, DValue=1))"));
}

TEST_F(ViewStepTest, takesTheShortWayRound) {
    StepTowards(viewOfCentre(170.0, 350.0, 150.0, 10.0, 4.0),
                viewOfCentre(-170.0, 10.0, -150.0, 10.0, 4.0), 1.0);
    const auto turns = callsTo("CorUtilViewRotate3D");
    ASSERT_EQ(turns.size(), 6u);
    EXPECT_EQ(turns[0], "CorUtilViewRotate3D(5, 60, 0, 0, 0, 0)");
    EXPECT_EQ(turns[1], "CorUtilViewRotate3D(3, 20, 0, 0, 0, 0)");
    EXPECT_EQ(turns[2], "CorUtilViewRotate3D(4, 20, 0, 0, 0, 0)");
}

TEST_F(ViewStepTest, lastStepReachesTheTarget) {
    const View reached = StepTowards(from, target, 1.0);
    EXPECT_NEAR(reached.x(), target.x(), 1e-9);
    EXPECT_NEAR(reached.y(), target.y(), 1e-9);
    EXPECT_NEAR(reached.z(), target.z(), 1e-9);
    EXPECT_NEAR(reached.psi(), target.psi(), 1e-9);
    EXPECT_NEAR(reached.theta(), target.theta(), 1e-9);
    EXPECT_NEAR(reached.alpha(), target.alpha(), 1e-9);
    EXPECT_NEAR(reached.width(), target.width(), 1e-9);
}

TEST_F(ViewStepTest, returnsWhatTheHostShows) {
    const View reached = StepTowards(from, target, 3.0);
    EXPECT_EQ(reached, corutiltools::GetCurrentView());
}

TEST_F(ViewStepTest, drawsNothing) {
    StepTowards(from, target, 2.0);
    EXPECT_THAT(callsTo("CorUtilRedraw"), IsEmpty());
    EXPECT_EQ(host.session().drawing().suspensions(), 0);
}

TEST_F(ViewStepTest, withAnUnreadablePerspectiveFlagEndsWithoutPerspective) {
    view().perspective = true;
    host.failNext("CorUtilStyleGet", 3);
    StepTowards(from, target, 2.0);
    EXPECT_FALSE(view().perspective);
}

TEST_F(ViewStepTest, outsideA3DFrameFailsAndLeavesNothingLocked) {
    frame().plotType = PlotType_Cartesian2D;
    EXPECT_THROW(StepTowards(from, target, 2.0), KeyFrameError);
    EXPECT_TRUE(hostIsAtRest());
}

// Whatever call fails in the middle of a step, nothing stays locked or suspended.
TEST_F(ViewStepTest, leavesNothingLockedWhenTheHostThrows) {
    StepTowards(from, target, 2.0);
    const std::size_t rotations = callsTo("CorUtilViewRotate3D").size();
    const std::size_t reads = callsTo("CorUtilThreeDViewGetViewerPos").size();
    const std::size_t writes = callsTo("CorUtilStyleSet").size();
    const auto failsAtEach = [&](const std::string& call, std::size_t count) {
        for (std::size_t k = 1; k <= count; ++k) {
            host.throwAt(call, static_cast<int>(k));
            EXPECT_THROW(StepTowards(from, target, 2.0), std::runtime_error) << call << k;
            EXPECT_TRUE(hostIsAtRest()) << call << k;
        }
    };
    failsAtEach("CorUtilViewRotate3D", rotations);
    failsAtEach("CorUtilThreeDViewGetViewerPos", reads);
    failsAtEach("CorUtilStyleSet", writes);
    failsAtEach("CorUtilStyleGet", 3);
}

} // namespace
} // namespace corvane::test
