#include "host/scene/layout/CameraSetup.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace corvane::scene {

using host::Bounds;
using host::Vec3;
using host::View3D;
using host::ViewBasis;

namespace {

/// The smallest ratio of the near to the far clipping distance, for a viewer within the data: with
/// less, the depth buffer would lose its precision.
constexpr double nearestPart = 1e-3;
/// Margin on both sides, so that nothing lies exactly in a clipping plane.
constexpr double margin = 1e-3;

struct DepthRange {
    double nearest = 0.0;
    double farthest = 1.0;
};

/// Distances from the point, along the line of sight.
DepthRange depthRange(const Bounds& box, const Vec3& from, const Vec3& toViewer) {
    if (box.isEmpty()) {
        return {};
    }
    const Vec3 center = box.center();
    const Vec3 half = 0.5 * box.size();
    const double middle = dot(from - center, toViewer);
    const double reach = std::abs(toViewer.x) * half.x + std::abs(toViewer.y) * half.y +
                         std::abs(toViewer.z) * half.z;
    const double room = std::max(margin * std::max(reach, box.diagonal()), 1e-9);
    return {middle - reach - room, middle + reach + room};
}

void place(vtkCamera& camera, const Vec3& position, const ViewBasis& basis, double distance) {
    const Vec3 focus = position - distance * basis.toViewer;
    camera.SetPosition(position.x, position.y, position.z);
    camera.SetFocalPoint(focus.x, focus.y, focus.z);
    camera.SetViewUp(basis.up.x, basis.up.y, basis.up.z);
}

void setPerspective(vtkCamera& camera, const View3D& view, const ViewBasis& basis,
                    const Bounds& shown) {
    const DepthRange depths = depthRange(shown, view.position, basis.toViewer);
    const double farthest = depths.farthest > 0.0 ? depths.farthest : 1.0;
    const double nearest = std::max(depths.nearest, nearestPart * farthest);
    place(camera, view.position, basis, farthest);
    camera.ParallelProjectionOff();
    camera.SetClippingRange(nearest, farthest);
}

/// In a parallel projection the position of the viewer along the line of sight does not matter, so
/// the camera may step back until everything lies in front of it.
void setOrthographic(vtkCamera& camera, const View3D& view, const ViewBasis& basis,
                     const Bounds& shown) {
    const DepthRange depths = depthRange(shown, view.position, basis.toViewer);
    const double depth = depths.farthest - depths.nearest;
    const double back = depth - depths.nearest;
    place(camera, view.position + back * basis.toViewer, basis, 2.0 * depth);
    camera.ParallelProjectionOn();
    camera.SetClippingRange(depth, 2.0 * depth);
}

/// Shifts the projection so that the visible part of the frame fills the viewport.
void setWindow(vtkCamera& camera, const View3D& view, const FrameArea& area) {
    const PixelRect& full = area.full;
    const PixelRect& visible = area.visible;
    const double part = static_cast<double>(visible.height) / full.height;
    const double halfAngle = 0.5 * view.fieldOfView * std::numbers::pi / 180.0;
    camera.SetViewAngle(2.0 * std::atan(part * std::tan(halfAngle)) * 180.0 / std::numbers::pi);
    camera.SetParallelScale(0.5 * part * view.width / full.aspect());
    setWindowCenter(camera, area);
}

} // namespace

void setWindowCenter(vtkCamera& camera, const FrameArea& area) {
    const PixelRect& full = area.full;
    const PixelRect& visible = area.visible;
    const double fromCenterX = visible.x - full.x + 0.5 * (visible.width - full.width);
    const double fromCenterY = visible.y - full.y + 0.5 * (visible.height - full.height);
    camera.SetWindowCenter(2.0 * fromCenterX / visible.width, 2.0 * fromCenterY / visible.height);
}

void setCamera(vtkCamera& camera, const View3D& view, const FrameArea& area, const Bounds& shown) {
    const ViewBasis basis = basisOf(view);
    if (view.perspective) {
        setPerspective(camera, view, basis, shown);
    } else {
        setOrthographic(camera, view, basis, shown);
    }
    setWindow(camera, view, area);
}

} // namespace corvane::scene
