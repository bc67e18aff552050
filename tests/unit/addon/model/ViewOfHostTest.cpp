// Views taken from the host and given to it.
#include "addon/model/View.h"

#include "addon/base/KeyFrameError.h"
#include "tests/support/HostTest.h"

#include <stdexcept>

namespace corvane::test {
namespace {

using corutiltools::GetCurrentView;
using corutiltools::KeyFrameError;
using corutiltools::View;
using testing::ElementsAre;

const View sample(1.0, 2.0, 3.0, 30.0, 400.0, -50.0, 6.0);

class ViewOfHostTest : public HostTest {
protected:
    ViewOfHostTest() { host.clearCalls(); }

    host::View3D& view() { return host.frame().view; }
};

TEST_F(ViewOfHostTest, captureTakesPositionAnglesAndWidth) {
    view().position = {1.5, -2.5, 3.5};
    view().psi = 90.0;
    view().theta = -45.0;
    view().alpha = 180.0;
    view().width = 12.0;
    const View captured = GetCurrentView();
    EXPECT_EQ(captured.x(), 1.5);
    EXPECT_EQ(captured.y(), -2.5);
    EXPECT_EQ(captured.z(), 3.5);
    EXPECT_NEAR(captured.psi(), 90.0, 1e-12);
    EXPECT_NEAR(captured.theta(), -45.0, 1e-12);
    EXPECT_NEAR(captured.alpha(), 180.0, 1e-12);
    EXPECT_EQ(captured.width(), 12.0);
}

TEST_F(ViewOfHostTest, captureDoesNotNormaliseAngles) {
    view().psi = 190.0;
    view().theta = -725.0;
    EXPECT_NEAR(GetCurrentView().psi(), 190.0, 1e-12);
    EXPECT_NEAR(GetCurrentView().theta(), -725.0, 1e-12);
}

TEST_F(ViewOfHostTest, captureAsksInOrderAndWithoutLock) {
    GetCurrentView();
    EXPECT_THAT(host.calls(),
                ElementsAre("CorUtilFrameGetPlotType()",
                            "CorUtilThreeDViewGetViewerPos(non-null, non-null, non-null)",
                            "CorUtilThreeDViewGetViewerAngle(non-null, non-null, non-null)",
                            "CorUtilThreeDViewGetProjection(non-null, non-null, non-null)"));
}

TEST_F(ViewOfHostTest, storeIsTheSameCapture) {
    View stored = sample;
    stored.storeCurrentView();
    const auto calls = host.calls();
    host.clearCalls();
    EXPECT_EQ(stored, GetCurrentView());
    EXPECT_EQ(calls, host.calls());
}

TEST_F(ViewOfHostTest, captureOutsideA3DFrameFailsAndLeavesTheRecord) {
    View stored = sample;
    host.setPlotType(PlotType_Cartesian2D);
    try {
        stored.storeCurrentView();
        FAIL() << "a 2D frame was captured";
    } catch (const KeyFrameError& error) {
        EXPECT_STREQ(error.what(), "The current frame must be in 3D Cartesian mode.");
    }
    EXPECT_EQ(stored, sample);
    EXPECT_THROW(GetCurrentView(), KeyFrameError);
}

TEST_F(ViewOfHostTest, captureKeepsZerosWhereTheHostAnswersNothing) {
    host.failNext("CorUtilThreeDViewGetViewerPos");
    host.failNext("CorUtilThreeDViewGetViewerAngle");
    host.failNext("CorUtilThreeDViewGetProjection");
    EXPECT_EQ(GetCurrentView(), View());
}

TEST_F(ViewOfHostTest, applySetsEverything) {
    sample.apply();
    EXPECT_EQ(view().position, (host::Vec3{1.0, 2.0, 3.0}));
    EXPECT_EQ(view().psi, 30.0);
    EXPECT_EQ(view().theta, 400.0);
    EXPECT_EQ(view().alpha, -50.0);
    EXPECT_EQ(view().width, 6.0);
}

TEST_F(ViewOfHostTest, applyCallsTheHostInOrder) {
    view().perspective = true;
    sample.apply();
    const auto path = [](const std::string& rest) {
        return "CorUtilStyleSet(\"ThreeDView\"," + rest + ")";
    };
    EXPECT_THAT(
        host.calls(),
        ElementsAre(
            "CorUtilLockStart(NULL)", "CorUtilLockStart(NULL)", "CorUtilDrawGraphics(FALSE)",
            path(R"("PSIAngle", DValue=30)"), path(R"("ThetaAngle", DValue=400)"),
            path(R"("AlphaAngle", DValue=-50)"), path(R"("ViewerPosition","X", DValue=1)"),
            path(R"("ViewerPosition","Y", DValue=2)"), path(R"("ViewerPosition","Z", DValue=3)"),
            R"(CorUtilStyleGet("ThreeDView","DrawInPerspective", IValue=non-null))",
            path(R"("DrawInPerspective", IValue=0, DValue=0)"), path(R"("ViewWidth", DValue=6)"),
            path(R"("DrawInPerspective", IValue=1, DValue=1)"), "CorUtilDrawGraphics(TRUE)",
            "CorUtilLockFinish(NULL)", "CorUtilLockFinish(NULL)"));
}

TEST_F(ViewOfHostTest, applyLeavesPerspectiveAsItIs) {
    for (bool perspective : {true, false}) {
        view().perspective = perspective;
        view().width = 1.0;
        sample.apply();
        EXPECT_EQ(view().perspective, perspective);
        EXPECT_EQ(view().width, 6.0);
    }
}

TEST_F(ViewOfHostTest, applyEndsWithoutPerspectiveWhenItCannotBeRead) {
    view().perspective = true;
    host.failNext("CorUtilStyleGet");
    sample.apply();
    EXPECT_FALSE(view().perspective);
    EXPECT_EQ(view().width, 6.0);
}

TEST_F(ViewOfHostTest, applyIgnoresRefusedWrites) {
    host.failNext("CorUtilStyleSet", 2);
    sample.apply();
    EXPECT_EQ(view().alpha, -50.0);
    EXPECT_EQ(view().width, 6.0);
}

TEST_F(ViewOfHostTest, applyDoesNotAskForThePlotType) {
    host.setPlotType(PlotType_Cartesian2D);
    host.clearCalls();
    sample.apply();
    EXPECT_EQ(host.count("CorUtilFrameGetPlotType"), 0u);
}

TEST_F(ViewOfHostTest, applyDrawsOnceWhenTheLastLockIsReleased) {
    sample.apply();
    ASSERT_EQ(host.renderer().renders(), 1u);
    EXPECT_EQ(host.renderer().states()[0].view.psi, 30.0);
}

TEST_F(ViewOfHostTest, applyReleasesEverythingWhenTheHostThrows) {
    for (std::size_t k = 1; k <= 9; ++k) {
        host.throwAt("CorUtilStyleSet", k);
        EXPECT_THROW(sample.apply(), std::runtime_error);
        EXPECT_EQ(host.session().locks().depth(), 0) << k;
        EXPECT_EQ(host.session().drawing().suspensions(), 0) << k;
    }
    host.throwAt("CorUtilStyleGet");
    EXPECT_THROW(sample.apply(), std::runtime_error);
    host.throwAt("CorUtilDrawGraphics");
    EXPECT_THROW(sample.apply(), std::runtime_error);
    host.throwAt("CorUtilLockStart", 2);
    EXPECT_THROW(sample.apply(), std::runtime_error);
}

TEST_F(ViewOfHostTest, captureAndApplyAreTheIdentity) {
    sample.apply();
    const View captured = GetCurrentView();
    EXPECT_NEAR(captured.psi(), sample.psi(), 1e-12);
    EXPECT_NEAR(captured.theta(), sample.theta(), 1e-12);
    EXPECT_NEAR(captured.alpha(), sample.alpha(), 1e-12);
    EXPECT_EQ(captured.x(), sample.x());
    EXPECT_EQ(captured.y(), sample.y());
    EXPECT_EQ(captured.z(), sample.z());
    EXPECT_EQ(captured.width(), sample.width());
}

} // namespace
} // namespace corvane::test
