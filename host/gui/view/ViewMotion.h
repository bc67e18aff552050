// How dragging the pointer changes a view.
#pragma once

#include "host/core/page/View3D.h"

namespace corvane::gui {

/// A distance in the picture, in pixels, to the right and upwards.
struct PictureOffset {
    double right = 0.0;
    double up = 0.0;
};

/// The size of the picture of the frame, in the same pixels.
struct PictureSize {
    double width = 1.0;
    double height = 1.0;
};

/// Data units per pixel; with perspective, at the depth of the rotation origin.
double unitsPerPixel(const host::View3D& view, const PictureSize& size);

/// Turns the scene as if the pointer held its front. An upright view stays upright: it stops at the
/// poles.
void turn(host::View3D& view, const PictureOffset& step, const PictureSize& size);

/// Twists about the line of sight, by the angle that the pointer moves about the center.
void twist(host::View3D& view, const PictureOffset& from, const PictureOffset& to);

/// Moves the scene so that points at the depth of the rotation origin follow the pointer.
void pan(host::View3D& view, const PictureOffset& step, const PictureSize& size);

/// Magnifies by the factor about a point of the picture, given from its center: what is there at
/// the depth of the rotation origin stays in place.
void zoom(host::View3D& view, double factor, const PictureOffset& at, const PictureSize& size);

/// The view with or without perspective that shows the rotation origin at the same place and scale.
host::View3D withPerspective(const host::View3D& view, bool perspective, double aspect);

} // namespace corvane::gui
