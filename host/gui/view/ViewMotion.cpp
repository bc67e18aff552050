#include "host/gui/view/ViewMotion.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace corvane::gui {

using host::Vec3;
using host::View3D;

namespace {

constexpr double pi = std::numbers::pi;

/// Degrees for a drag as long as the picture is high.
constexpr double degreesPerHeight = 220.0;

/// Keeps the depth positive, so that dragging works with a rotation origin behind the viewer.
constexpr double minimalDepthRatio = 1e-3;

double depthOfOrigin(const View3D& view) {
    const Vec3 offset = view.position - view.rotationOrigin;
    const double depth = dot(offset, basisOf(view).toViewer);
    const double least = std::max(minimalDepthRatio * length(offset), 1e-12);
    return std::max(depth, least);
}

double tangent(const View3D& view) {
    return std::tan(0.5 * view.fieldOfView * pi / 180.0);
}

/// The part of the tilt that keeps an upright view between the poles.
double tilt(double psi, double degrees) {
    const bool isUpright = psi >= 0.0 && psi <= 180.0;
    return isUpright ? std::clamp(psi + degrees, 0.0, 180.0) - psi : degrees;
}

Vec3 inScene(const View3D& view, const PictureOffset& offset, double scale) {
    const host::ViewBasis basis = basisOf(view);
    return offset.right * scale * basis.right + offset.up * scale * basis.up;
}

} // namespace

double unitsPerPixel(const View3D& view, const PictureSize& size) {
    if (!view.perspective) {
        return view.width / size.width;
    }
    return 2.0 * depthOfOrigin(view) * tangent(view) / size.height;
}

void turn(View3D& view, const PictureOffset& step, const PictureSize& size) {
    const double alpha = view.alpha * pi / 180.0;
    const double right = std::cos(alpha) * step.right - std::sin(alpha) * step.up;
    const double up = std::sin(alpha) * step.right + std::cos(alpha) * step.up;
    const double degreesPerPixel = degreesPerHeight / size.height;
    rotate(view, RotateAxis_Theta, degreesPerPixel * right);
    rotate(view, RotateAxis_Psi, tilt(view.psi, degreesPerPixel * up));
}

void twist(View3D& view, const PictureOffset& from, const PictureOffset& to) {
    const double before = std::atan2(from.up, from.right);
    const double after = std::atan2(to.up, to.right);
    // Alpha twists the viewer, so the picture turns the other way.
    const double degrees = std::remainder(before - after, 2.0 * pi) * 180.0 / pi;
    rotate(view, RotateAxis_Alpha, degrees);
}

void pan(View3D& view, const PictureOffset& step, const PictureSize& size) {
    view.position = view.position - inScene(view, step, unitsPerPixel(view, size));
}

void zoom(View3D& view, double factor, const PictureOffset& at, const PictureSize& size) {
    const double rest = 1.0 - 1.0 / factor;
    View3D zoomed = view;
    zoomed.position = view.position + rest * inScene(view, at, unitsPerPixel(view, size));
    if (view.perspective) {
        const Vec3 ahead = depthOfOrigin(view) * basisOf(view).toViewer;
        zoomed.position = zoomed.position - rest * ahead;
    } else {
        zoomed.width = view.width / factor;
    }
    if (isFinite(zoomed.position) && std::isnormal(zoomed.width)) {
        view = zoomed;
    }
}

View3D withPerspective(const View3D& view, bool perspective, double aspect) {
    View3D changed = view;
    changed.perspective = perspective;
    if (view.perspective == perspective) {
        return changed;
    }
    if (!perspective) {
        changed.width = 2.0 * depthOfOrigin(view) * tangent(view) * aspect;
        return changed;
    }
    const Vec3 toViewer = basisOf(view).toViewer;
    const double depth = dot(view.position - view.rotationOrigin, toViewer);
    const double wanted = 0.5 * view.width / (tangent(view) * aspect);
    changed.position = view.position + (wanted - depth) * toViewer;
    return changed;
}

} // namespace corvane::gui
