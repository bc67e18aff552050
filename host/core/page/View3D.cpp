// The arithmetic of views: directions, rigid rotation, fitting.
#include "host/core/page/View3D.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace corvane::host {

namespace {

constexpr double pi = 3.14159265358979323846;

/// How much larger than the data the picture is.
constexpr double fitMargin = 1.05;

/// The least extent of a picture, and the least distance from the data, in diagonals: flat data
/// that are seen end on have no extent in the picture.
constexpr double leastExtent = 1e-3;

/// Reduced first, since the sine of a large angle in radians loses digits.
double radians(double degrees) {
    return std::remainder(degrees, 360.0) * (pi / 180.0);
}

double* angleOf(View3D& view, RotateAxis_e axis) {
    switch (axis) {
    case RotateAxis_Psi:
        return &view.psi;
    case RotateAxis_Theta:
        return &view.theta;
    case RotateAxis_Alpha:
        return &view.alpha;
    }
    return nullptr;
}

/// Coordinates of a vector along the directions of the picture.
Vec3 inBasis(const ViewBasis& basis, const Vec3& v) {
    return {dot(basis.right, v), dot(basis.up, v), dot(basis.toViewer, v)};
}

Vec3 fromBasis(const ViewBasis& basis, const Vec3& v) {
    return v.x * basis.right + v.y * basis.up + v.z * basis.toViewer;
}

Bounds withExtent(const Bounds& box) {
    if (box.diagonal() > 0.0) {
        return box;
    }
    const Vec3 half{0.5, 0.5, 0.5};
    return {box.min - half, box.max + half};
}

/// What a box needs of a picture that has the centre of the box in its own centre.
struct FitResult {
    double distance = 0.0;
    double width = 0.0;
};

FitResult fitBox(const ViewBasis& basis, const Bounds& box, double fieldOfView, double aspect) {
    const double tanUp = std::tan(0.5 * fieldOfView * (pi / 180.0)) / fitMargin;
    const double tanRight = tanUp * aspect;
    const Vec3 half = 0.5 * box.size();
    const double least = leastExtent * box.diagonal();
    FitResult result{0.0, least};
    for (const double x : {-half.x, half.x}) {
        for (const double y : {-half.y, half.y}) {
            for (const double z : {-half.z, half.z}) {
                const Vec3 corner = inBasis(basis, {x, y, z});
                const double right = std::abs(corner.x);
                const double up = std::abs(corner.y);
                const double away = std::max({right / tanRight, up / tanUp, least});
                result.distance = std::max(result.distance, corner.z + away);
                result.width = std::max({result.width, 2.0 * right, 2.0 * up * aspect});
            }
        }
    }
    result.width *= fitMargin;
    return result;
}

} // namespace

ViewBasis basisOf(const View3D& view) {
    const double psi = radians(view.psi);
    const double theta = radians(view.theta);
    const double alpha = radians(view.alpha);
    const double sinPsi = std::sin(psi);
    const double cosPsi = std::cos(psi);
    const double sinTheta = std::sin(theta);
    const double cosTheta = std::cos(theta);
    const double sinAlpha = std::sin(alpha);
    const double cosAlpha = std::cos(alpha);
    const Vec3 toViewer{-sinPsi * sinTheta, -sinPsi * cosTheta, cosPsi};
    const Vec3 up{cosPsi * sinTheta, cosPsi * cosTheta, sinPsi};
    const Vec3 right{cosTheta, -sinTheta, 0.0}; // up × toViewer, multiplied out
    return {cosAlpha * right + sinAlpha * up, cosAlpha * up - sinAlpha * right, toViewer};
}

void rotate(View3D& view, RotateAxis_e axis, double degrees) {
    View3D turned = view;
    double* angle = angleOf(turned, axis);
    if (angle == nullptr) {
        return;
    }
    *angle += degrees;
    const Vec3 offset = inBasis(basisOf(view), view.position - view.rotationOrigin);
    turned.position = turned.rotationOrigin + fromBasis(basisOf(turned), offset);
    if (std::isfinite(*angle) && isFinite(turned.position)) {
        view = turned;
    }
}

void fit(View3D& view, const Bounds& box, double aspect) {
    if (box.isEmpty() || !isFinite(box.min) || !isFinite(box.max) || !(aspect > 0.0)) {
        return;
    }
    const ViewBasis basis = basisOf(view);
    const Vec3 center = box.center();
    const FitResult needed = fitBox(basis, withExtent(box), view.fieldOfView, aspect);
    const Vec3 position = center + needed.distance * basis.toViewer;
    if (!isFinite(position) || !std::isfinite(needed.width)) {
        return;
    }
    view.position = position;
    view.width = needed.width;
    view.rotationOrigin = center;
}

} // namespace corvane::host
