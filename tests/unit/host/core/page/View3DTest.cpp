// Tests of the view's arithmetic against closed forms.
#include "host/core/page/View3D.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <vector>

namespace corvane::host {
namespace {

constexpr double pi = 3.14159265358979323846;
constexpr double exact = 1e-12;

double rad(double degrees) {
    return degrees * pi / 180.0;
}

void expectNear(const Vec3& actual, const Vec3& expected, double tolerance = exact) {
    EXPECT_NEAR(actual.x, expected.x, tolerance);
    EXPECT_NEAR(actual.y, expected.y, tolerance);
    EXPECT_NEAR(actual.z, expected.z, tolerance);
}

View3D viewWith(double psi, double theta, double alpha) {
    View3D view;
    view.psi = psi;
    view.theta = theta;
    view.alpha = alpha;
    return view;
}

std::vector<View3D> manyViews() {
    std::vector<View3D> views;
    for (const double psi : {-725.0, -170.0, -90.0, 0.0, 0.001, 65.0, 90.0, 180.0, 190.0}) {
        for (const double theta : {-400.0, -30.0, 0.0, 45.0, 90.0, 271.0}) {
            for (const double alpha : {-200.0, 0.0, 10.0, 90.0, 359.0}) {
                views.push_back(viewWith(psi, theta, alpha));
            }
        }
    }
    return views;
}

/// Where a point appears: right, up and toward the viewer, from the viewer's place.
Vec3 inPicture(const View3D& view, const Vec3& point) {
    const ViewBasis basis = basisOf(view);
    const Vec3 offset = point - view.position;
    return {dot(basis.right, offset), dot(basis.up, offset), dot(basis.toViewer, offset)};
}

std::array<Vec3, 8> cornersOf(const Bounds& box) {
    std::array<Vec3, 8> corners;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        corners[i] = {(i & 1U) != 0 ? box.max.x : box.min.x, (i & 2U) != 0 ? box.max.y : box.min.y,
                      (i & 4U) != 0 ? box.max.z : box.min.z};
    }
    return corners;
}

TEST(View3DBasis, looksDownWithXRightAtZeroAngles) {
    const ViewBasis basis = basisOf({});
    expectNear(basis.right, {1, 0, 0}, 0);
    expectNear(basis.up, {0, 1, 0}, 0);
    expectNear(basis.toViewer, {0, 0, 1}, 0);
}

TEST(View3DBasis, followsTheClosedFormsWithoutTwist) {
    for (const double psi : {-200.0, 0.0, 33.0, 90.0, 180.0}) {
        for (const double theta : {-10.0, 0.0, 77.0, 300.0}) {
            const ViewBasis basis = basisOf(viewWith(psi, theta, 0.0));
            const double sp = std::sin(rad(psi));
            const double cp = std::cos(rad(psi));
            const double st = std::sin(rad(theta));
            const double ct = std::cos(rad(theta));
            expectNear(basis.toViewer, {-sp * st, -sp * ct, cp});
            expectNear(basis.up, {cp * st, cp * ct, sp});
            expectNear(basis.right, cross(basis.up, basis.toViewer));
        }
    }
}

TEST(View3DBasis, isOrthonormalAndRightHandedForAllAngles) {
    for (const View3D& view : manyViews()) {
        const ViewBasis basis = basisOf(view);
        EXPECT_NEAR(length(basis.right), 1.0, exact);
        EXPECT_NEAR(length(basis.up), 1.0, exact);
        EXPECT_NEAR(dot(basis.right, basis.up), 0.0, exact);
        expectNear(cross(basis.right, basis.up), basis.toViewer);
    }
}

TEST(View3DBasis, alphaTurnsUpCounterClockwiseInThePicture) {
    const ViewBasis before = basisOf(viewWith(40.0, 20.0, 0.0));
    const ViewBasis after = basisOf(viewWith(40.0, 20.0, 30.0));
    expectNear(after.up, std::cos(rad(30.0)) * before.up - std::sin(rad(30.0)) * before.right);
    expectNear(after.right, std::cos(rad(30.0)) * before.right + std::sin(rad(30.0)) * before.up);
    expectNear(after.toViewer, before.toViewer);
}

TEST(View3DBasis, keepsItsDigitsForLargeAngles) {
    const ViewBasis small = basisOf(viewWith(65.0, 30.0, 10.0));
    const ViewBasis large =
        basisOf(viewWith(65.0 + 360.0 * 1e6, 30.0 - 360.0 * 1e6, 10.0 + 360.0 * 1e6));
    expectNear(large.right, small.right, 1e-9);
    expectNear(large.toViewer, small.toViewer, 1e-9);
}

class View3DRotate : public testing::TestWithParam<RotateAxis_e> {
protected:
    static double angle(const View3D& view) {
        switch (GetParam()) {
        case RotateAxis_Psi:
            return view.psi;
        case RotateAxis_Theta:
            return view.theta;
        default:
            return view.alpha;
        }
    }
    static View3D placed(View3D view) {
        view.position = {3.0, -4.0, 7.5};
        view.rotationOrigin = {0.25, 1.0, -2.0};
        return view;
    }
};

TEST_P(View3DRotate, keepsTheOriginInItsPlaceOfThePicture) {
    for (const View3D& start : manyViews()) {
        View3D view = placed(start);
        const Vec3 before = inPicture(view, view.rotationOrigin);
        rotate(view, GetParam(), 37.5);
        expectNear(inPicture(view, view.rotationOrigin), before);
        EXPECT_DOUBLE_EQ(angle(view), angle(start) + 37.5);
    }
}

TEST_P(View3DRotate, touchesNothingButOneAngleAndThePosition) {
    View3D view = placed(viewWith(10, 20, 30));
    View3D expected = view;
    rotate(view, GetParam(), 400.0);
    (GetParam() == RotateAxis_Psi     ? expected.psi
     : GetParam() == RotateAxis_Theta ? expected.theta
                                      : expected.alpha) += 400.0;
    EXPECT_NE(view.position, expected.position);
    expected.position = view.position;
    EXPECT_EQ(view, expected);
}

TEST_P(View3DRotate, composesFromSmallSteps) {
    View3D once = placed(viewWith(170, -20, 5));
    View3D often = once;
    rotate(once, GetParam(), 50.0);
    for (int i = 0; i < 100; ++i) {
        rotate(often, GetParam(), 0.5);
    }
    EXPECT_NEAR(angle(often), angle(once), exact);
    expectNear(often.position, once.position, 1e-11);
}

TEST_P(View3DRotate, keepsEverythingForAmountsThatAreNotFinite) {
    View3D view = placed(viewWith(1, 2, 3));
    const View3D before = view;
    rotate(view, GetParam(), std::numeric_limits<double>::quiet_NaN());
    rotate(view, GetParam(), std::numeric_limits<double>::infinity());
    EXPECT_EQ(view, before);
}

INSTANTIATE_TEST_SUITE_P(Axes, View3DRotate,
                         testing::Values(RotateAxis_Psi, RotateAxis_Theta, RotateAxis_Alpha));

TEST(View3DRotateClosedForm, thetaCarriesTheViewerAboutTheZAxis) {
    View3D view = viewWith(90, 0, 0);
    view.position = {0, -5, 0};
    rotate(view, RotateAxis_Theta, 90.0);
    expectNear(view.position, {-5, 0, 0});
    expectNear(basisOf(view).toViewer, {-1, 0, 0});
}

TEST(View3DRotateClosedForm, psiTiltsTheViewerAwayFromZ) {
    View3D view;
    view.position = {0, 0, 5};
    rotate(view, RotateAxis_Psi, 90.0);
    expectNear(view.position, {0, -5, 0});
}

TEST(View3DRotateClosedForm, alphaTwistsAboutTheLineOfSight) {
    View3D view;
    view.position = {1, 0, 5};
    rotate(view, RotateAxis_Alpha, 90.0);
    expectNear(view.position, {0, 1, 5});
}

TEST(View3DRotateClosedForm, reservedAxesChangeNothing) {
    View3D view = viewWith(1, 2, 3);
    const View3D before = view;
    rotate(view, static_cast<RotateAxis_e>(0), 10.0);
    rotate(view, static_cast<RotateAxis_e>(6), 10.0);
    EXPECT_EQ(view, before);
}

class View3DFit : public testing::TestWithParam<double> {
protected:
    const Bounds box{{-1, 2, 3}, {9, 4, 3.5}};
    const double aspect = GetParam();

    /// The largest share of the half picture that a corner takes.
    double perspectiveShare(const View3D& view) const {
        const double tanUp = std::tan(rad(view.fieldOfView / 2));
        double share = 0.0;
        for (const Vec3& corner : cornersOf(box)) {
            const Vec3 seen = inPicture(view, corner);
            EXPECT_LT(seen.z, 0.0) << "behind the viewer";
            share = std::max({share, std::abs(seen.y) / (-seen.z * tanUp),
                              std::abs(seen.x) / (-seen.z * tanUp * aspect)});
        }
        return share;
    }
    double orthographicShare(const View3D& view) const {
        double share = 0.0;
        for (const Vec3& corner : cornersOf(box)) {
            const Vec3 seen = inPicture(view, corner);
            share = std::max({share, std::abs(seen.x) / (view.width / 2),
                              std::abs(seen.y) / (view.width / aspect / 2)});
        }
        return share;
    }
};

TEST_P(View3DFit, keepsAllCornersInsideAndLeavesFivePercent) {
    for (View3D view : manyViews()) {
        for (const double fieldOfView : {5.0, 30.0, 120.0}) {
            view.fieldOfView = fieldOfView;
            fit(view, box, aspect);
            EXPECT_NEAR(perspectiveShare(view), 1.0 / 1.05, 1e-9);
            EXPECT_NEAR(orthographicShare(view), 1.0 / 1.05, 1e-9);
        }
    }
}

TEST_P(View3DFit, putsTheCentreOfTheBoxAndTheOriginInTheMiddle) {
    View3D view = viewWith(65, 30, 12);
    view.perspective = false;
    view.fieldOfView = 40;
    fit(view, box, aspect);
    EXPECT_EQ(view.rotationOrigin, box.center());
    const Vec3 seen = inPicture(view, box.center());
    EXPECT_NEAR(seen.x, 0.0, exact);
    EXPECT_NEAR(seen.y, 0.0, exact);
    EXPECT_EQ(view.psi, 65);
    EXPECT_EQ(view.theta, 30);
    EXPECT_EQ(view.alpha, 12);
    EXPECT_FALSE(view.perspective);
    EXPECT_EQ(view.fieldOfView, 40);
}

INSTANTIATE_TEST_SUITE_P(Aspects, View3DFit, testing::Values(0.25, 1.0, 16.0 / 9.0));

TEST(View3DFitLimits, treatsAPointAsABoxOfExtentOne) {
    View3D point = viewWith(65, 30, 0);
    View3D cube = point;
    fit(point, {{1, 2, 3}, {1, 2, 3}}, 1.5);
    fit(cube, {{0.5, 1.5, 2.5}, {1.5, 2.5, 3.5}}, 1.5);
    EXPECT_EQ(point, cube);
}

TEST(View3DFitLimits, aLineSeenEndOnLeavesAPictureWithExtent) {
    View3D view;
    fit(view, {{0, 0, -5}, {0, 0, 5}}, 1.0);
    EXPECT_GT(view.width, 0.0);
    EXPECT_GT(view.position.z, 5.0);
}

TEST(View3DFitLimits, changesNothingForBoxesThatCannotBeFitted) {
    const double infinity = std::numeric_limits<double>::infinity();
    const double huge = std::numeric_limits<double>::max();
    View3D view = viewWith(1, 2, 3);
    const View3D before = view;
    fit(view, {}, 1.0);
    fit(view, {{0, 0, 0}, {1, infinity, 1}}, 1.0);
    fit(view, {{-huge, -huge, -huge}, {huge, huge, huge}}, 1.0);
    fit(view, {{0, 0, 0}, {1, 1, 1}}, 0.0);
    fit(view, {{0, 0, 0}, {1, 1, 1}}, std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(view, before);
}

} // namespace
} // namespace corvane::host
