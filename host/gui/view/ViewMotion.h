// How a pointer moves a view: arithmetic alone.
#pragma once

#include "host/core/page/View3D.h"

namespace corvane::gui {

/// A distance in the picture, in pixels, to the right and upwards.
struct PictureOffset {
    double right = 0.0;
    double up = 0.0;
};

/// The size of the frame's picture, in the same pixels.
struct PictureSize {
    double width = 1.0;
    double height = 1.0;
};

/// Data units that one pixel shows, at the depth of the rotation origin when there is perspective.
double unitsPerPixel(const host::View3D& view, const PictureSize& size);

/// Turns as if the pointer held the front of the scene. A view that has not gone over a pole does
/// not, so that up stays up.
void turn(host::View3D& view, const PictureOffset& step, const PictureSize& size);

/// Twists about the line of sight, by the angle that the pointer goes around the picture's centre.
void twist(host::View3D& view, const PictureOffset& from, const PictureOffset& to);

/// What lies at the depth of the rotation origin follows the pointer.
void pan(host::View3D& view, const PictureOffset& step, const PictureSize& size);

/// Makes everything larger (factor > 1) about one place of the picture, given from its centre: what
/// lies there, at the depth of the rotation origin, stays there.
void zoom(host::View3D& view, double factor, const PictureOffset& at, const PictureSize& size);

/// The view with or without perspective that shows the rotation origin in the same place and size.
host::View3D withPerspective(const host::View3D& view, bool perspective, double aspect);

} // namespace corvane::gui
