// The arithmetic of turning, moving and zooming a view.
#include "host/gui/view/ViewMotion.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace corvane::test {

namespace {

using gui::PictureOffset;
using gui::PictureSize;
using host::Vec3;
using host::View3D;

constexpr PictureSize size{800.0, 600.0};

View3D corner(bool perspective) {
    View3D view;
    view.psi = 65.0;
    view.theta = 30.0;
    view.alpha = 20.0;
    view.perspective = perspective;
    view.rotationOrigin = {1.0, 2.0, 3.0};
    view.position = view.rotationOrigin + 10.0 * basisOf(view).toViewer;
    view.width = 7.0;
    return view;
}

/// Where a point is seen, in pixels from the picture's centre.
PictureOffset seenAt(const View3D& view, const Vec3& point) {
    const host::ViewBasis basis = basisOf(view);
    const Vec3 offset = point - view.position;
    double pixelsPerUnit = size.width / view.width;
    if (view.perspective) {
        const double tangent = std::tan(0.5 * view.fieldOfView * std::numbers::pi / 180.0);
        pixelsPerUnit = 0.5 * size.height / (tangent * -dot(offset, basis.toViewer));
    }
    return {pixelsPerUnit * dot(offset, basis.right), pixelsPerUnit * dot(offset, basis.up)};
}

/// The point at the depth of the rotation origin that is seen there.
Vec3 pointAt(const View3D& view, const PictureOffset& at) {
    const host::ViewBasis basis = basisOf(view);
    const PictureOffset origin = seenAt(view, view.rotationOrigin);
    const double scale = gui::unitsPerPixel(view, size);
    return view.rotationOrigin + scale * (at.right - origin.right) * basis.right +
           scale * (at.up - origin.up) * basis.up;
}

void expectSeenAt(const View3D& view, const Vec3& point, const PictureOffset& expected) {
    const PictureOffset seen = seenAt(view, point);
    EXPECT_NEAR(seen.right, expected.right, 1e-8);
    EXPECT_NEAR(seen.up, expected.up, 1e-8);
}

class ViewMotion : public ::testing::TestWithParam<bool> {};

TEST_P(ViewMotion, panCarriesThePointUnderThePointer) {
    View3D view = corner(GetParam());
    const Vec3 held = pointAt(view, {100.0, -50.0});
    gui::pan(view, {30.0, 20.0}, size);
    expectSeenAt(view, held, {130.0, -30.0});
}

TEST_P(ViewMotion, zoomKeepsThePointUnderThePointer) {
    View3D view = corner(GetParam());
    const PictureOffset pointer{200.0, 120.0};
    const Vec3 held = pointAt(view, pointer);
    const double before = gui::unitsPerPixel(view, size);
    gui::zoom(view, 2.0, pointer, size);
    expectSeenAt(view, held, pointer);
    EXPECT_NEAR(gui::unitsPerPixel(view, size), 0.5 * before, 1e-12);
}

TEST_P(ViewMotion, zoomOutUndoesZoomIn) {
    const View3D before = corner(GetParam());
    View3D view = before;
    gui::zoom(view, 1.25, {10.0, 20.0}, size);
    gui::zoom(view, 0.8, {10.0, 20.0}, size);
    EXPECT_NEAR(length(view.position - before.position), 0.0, 1e-12);
    EXPECT_NEAR(view.width, before.width, 1e-12);
}

TEST_P(ViewMotion, perspectiveKeepsPlaceAndSizeOfTheOrigin) {
    const View3D before = corner(GetParam());
    const View3D after = gui::withPerspective(before, !GetParam(), size.width / size.height);
    EXPECT_EQ(after.perspective, !GetParam());
    EXPECT_NEAR(gui::unitsPerPixel(after, size), gui::unitsPerPixel(before, size), 1e-12);
    expectSeenAt(after, before.rotationOrigin, seenAt(before, before.rotationOrigin));
}

INSTANTIATE_TEST_SUITE_P(Projections, ViewMotion, ::testing::Bool(), [](const auto& projection) {
    return projection.param ? "Perspective" : "Orthographic";
});

TEST(ViewTurn, frontFollowsThePointer) {
    View3D view = corner(true);
    view.alpha = 0.0;
    const Vec3 front = view.rotationOrigin + basisOf(view).toViewer;
    gui::turn(view, {40.0, 0.0}, size);
    EXPECT_GT(seenAt(view, front).right, 0.0);
    gui::turn(view, {-40.0, 25.0}, size);
    EXPECT_GT(seenAt(view, front).up, 0.0);
}

TEST(ViewTurn, followsThePointerInATwistedPictureToo) {
    View3D view = corner(true);
    view.alpha = 90.0;
    const Vec3 front = view.rotationOrigin + basisOf(view).toViewer;
    gui::turn(view, {20.0, 0.0}, size);
    const PictureOffset seen = seenAt(view, front);
    EXPECT_GT(seen.right, 0.0);
    EXPECT_LT(std::abs(seen.up), 0.2 * seen.right);
}

TEST(ViewTurn, stopsAtThePoles) {
    View3D view = corner(true);
    gui::turn(view, {0.0, 10000.0}, size);
    EXPECT_LE(view.psi, 180.0);
    gui::turn(view, {0.0, -20000.0}, size);
    EXPECT_GE(view.psi, 0.0);
}

TEST(ViewTurn, goesOnBeyondThePolesWhereTheViewIsThereAlready) {
    View3D view = corner(true);
    view.psi = 200.0;
    gui::turn(view, {0.0, 100.0}, size);
    EXPECT_GT(std::abs(view.psi - 200.0), 1.0);
}

TEST(ViewTwist, thePictureFollowsThePointer) {
    View3D view = corner(true);
    const Vec3 point = pointAt(view, {100.0, 0.0});
    gui::twist(view, {100.0, 0.0}, {0.0, 100.0});
    expectSeenAt(view, point, {0.0, 100.0});
}

TEST(ViewZoom, movesSomethingEvenBehindTheOrigin) {
    View3D view = corner(true);
    view.position = view.rotationOrigin - 2.0 * basisOf(view).toViewer;
    const Vec3 before = view.position;
    gui::zoom(view, 1.5, {}, size);
    EXPECT_TRUE(isFinite(view.position));
    EXPECT_GT(length(view.position - before), 0.0);
}

} // namespace

} // namespace corvane::test
