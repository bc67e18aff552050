// The 3D view.
#include "hostapi/CorHost.h"
#include "tests/support/HostTest.h"

#include <cmath>
#include <limits>
#include <numbers>

namespace corvane::test {
namespace {

using ::testing::Each;

class ViewApiTest : public HostTest {
protected:
    host::View3D& view() { return host.frame().view; }
};

/// What an add-on does to keep a view, and to bring it back.
struct CapturedView {
    CapturedView() {
        CorUtilThreeDViewGetViewerPos(&x, &y, &z);
        CorUtilThreeDViewGetViewerAngle(&psi, &theta, &alpha);
        CorUtilThreeDViewGetProjection(nullptr, &width, nullptr);
    }
    void apply() const {
        const double degrees = 180.0 / std::numbers::pi;
        toolbox::StyleValue style("ThreeDView");
        style.set(psi * degrees, "PSIAngle");
        style.set(theta * degrees, "ThetaAngle");
        style.set(alpha * degrees, "AlphaAngle");
        style.set(x, "ViewerPosition", "X");
        style.set(y, "ViewerPosition", "Y");
        style.set(z, "ViewerPosition", "Z");
        bool perspective = false;
        style.getBoolean(perspective, "DrawInPerspective");
        style.setBoolean(false, "DrawInPerspective");
        style.set(width, "ViewWidth");
        style.setBoolean(perspective, "DrawInPerspective");
    }
    double x = 0.0, y = 0.0, z = 0.0, psi = 0.0, theta = 0.0, alpha = 0.0, width = 0.0;
};

TEST_F(ViewApiTest, anglesAreReadInRadians) {
    view().psi = 180.0;
    view().theta = -90.0;
    view().alpha = 720.0;
    double psi = 0.0;
    double theta = 0.0;
    double alpha = 0.0;
    CorUtilThreeDViewGetViewerAngle(&psi, &theta, &alpha);
    EXPECT_DOUBLE_EQ(psi, std::numbers::pi);
    EXPECT_DOUBLE_EQ(theta, -std::numbers::pi / 2.0);
    EXPECT_DOUBLE_EQ(alpha, 4.0 * std::numbers::pi);
}

TEST_F(ViewApiTest, positionAndProjectionAreRead) {
    view().position = {1.0, 2.0, 3.0};
    view().fieldOfView = 45.0;
    view().width = 9.0;
    view().perspective = true;
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
    double fieldOfView = 0.0;
    double width = 0.0;
    CorBool perspective = FALSE;
    CorUtilThreeDViewGetViewerPos(&x, &y, &z);
    CorUtilThreeDViewGetProjection(&fieldOfView, &width, &perspective);
    EXPECT_EQ((host::Vec3{x, y, z}), view().position);
    EXPECT_EQ(fieldOfView, 45.0);
    EXPECT_EQ(width, 9.0);
    EXPECT_EQ(perspective, TRUE);
}

TEST_F(ViewApiTest, whatIsReadCanBeWrittenBackExactly) {
    for (const double angle : {0.0, 65.0, 190.0, -170.123456789, 359.9999999, 1234.5}) {
        for (const bool perspective : {true, false}) {
            view().psi = angle;
            view().theta = -2.0 * angle;
            view().alpha = angle / 3.0;
            view().position = {1e3 + angle, -0.1, 1e-7};
            view().width = 3.7;
            view().perspective = perspective;
            const host::View3D before = view();
            const CapturedView captured;
            view() = host::View3D{};
            view().perspective = perspective;
            view().fieldOfView = before.fieldOfView;
            view().rotationOrigin = before.rotationOrigin;
            captured.apply();
            EXPECT_NEAR(view().psi, before.psi, 1e-12 * std::max(1.0, std::abs(before.psi)));
            EXPECT_NEAR(view().theta, before.theta, 1e-12 * std::max(1.0, std::abs(before.theta)));
            EXPECT_NEAR(view().alpha, before.alpha, 1e-12 * std::max(1.0, std::abs(before.alpha)));
            EXPECT_EQ(view().position, before.position);
            EXPECT_EQ(view().width, before.width);
            EXPECT_EQ(view().perspective, perspective);
        }
    }
}

TEST_F(ViewApiTest, noRoomForResultsIsFine) {
    CorUtilThreeDViewGetViewerPos(nullptr, nullptr, nullptr);
    CorUtilThreeDViewGetViewerAngle(nullptr, nullptr, nullptr);
    CorUtilThreeDViewGetProjection(nullptr, nullptr, nullptr);
}

TEST_F(ViewApiTest, aFrameThatIsNot3DWritesNothing) {
    host.setPlotType(PlotType_Cartesian2D);
    std::vector<double> results(8, -1.0);
    CorBool perspective = 7;
    CorUtilThreeDViewGetViewerPos(&results[0], &results[1], &results[2]);
    CorUtilThreeDViewGetViewerAngle(&results[3], &results[4], &results[5]);
    CorUtilThreeDViewGetProjection(&results[6], &results[7], &perspective);
    EXPECT_THAT(results, Each(-1.0));
    EXPECT_EQ(perspective, 7);
    EXPECT_EQ(CorUtilViewRotate3D(RotateAxis_Psi, 10.0, 0.0, 0.0, 0.0, RotateOrigin_Default),
              FALSE);
}

TEST_F(ViewApiTest, rotationsChangeExactlyOneAngleByDegrees) {
    const host::View3D before = view();
    EXPECT_EQ(CorUtilViewRotate3D(RotateAxis_Psi, 10.0, 0.0, 0.0, 1.0, RotateOrigin_Default), TRUE);
    EXPECT_EQ(CorUtilViewRotate3D(RotateAxis_Theta, -20.0, 0.0, 0.0, 1.0, RotateOrigin_Default),
              TRUE);
    EXPECT_EQ(CorUtilViewRotate3D(RotateAxis_Alpha, 400.0, 0.0, 0.0, 1.0, RotateOrigin_Default),
              TRUE);
    EXPECT_DOUBLE_EQ(view().psi, before.psi + 10.0);
    EXPECT_DOUBLE_EQ(view().theta, before.theta - 20.0);
    EXPECT_DOUBLE_EQ(view().alpha, before.alpha + 400.0);
    const double distance = host::length(before.position - before.rotationOrigin);
    EXPECT_NEAR(host::length(view().position - view().rotationOrigin), distance, 1e-12 * distance);
    EXPECT_EQ(host.renderer().renders(), 0U);
    EXPECT_TRUE(host.session().drawing().isMarked());
}

TEST_F(ViewApiTest, degreesThatAreNotFiniteAreRefused) {
    const host::View3D before = view();
    EXPECT_EQ(CorUtilViewRotate3D(RotateAxis_Psi, std::nan(""), 0, 0, 0, RotateOrigin_Default),
              FALSE);
    EXPECT_EQ(CorUtilViewRotate3D(RotateAxis_Psi, std::numeric_limits<double>::infinity(), 0, 0, 0,
                                  RotateOrigin_Default),
              FALSE);
    EXPECT_EQ(view(), before);
}

TEST_F(ViewApiTest, anUnknownAxisIsMisuse) {
    host.expectMisuse("CorUtilViewRotate3D: unknown axis");
    const host::View3D before = view();
    EXPECT_EQ(CorUtilViewRotate3D(static_cast<RotateAxis_e>(2), 1.0, 0, 0, 0, RotateOrigin_Default),
              FALSE);
    EXPECT_EQ(view(), before);
}

TEST_F(ViewApiTest, rotationsAreTracedInDegrees) {
    CorUtilViewRotate3D(RotateAxis_Theta, 0.25, 0.0, 0.0, 1.0, RotateOrigin_Default);
    EXPECT_EQ(host::toString(host.records().back()),
              "CorUtilViewRotate3D(4, 0.25, 0, 0, 1, 0) = TRUE [0]");
}

} // namespace
} // namespace corvane::test
