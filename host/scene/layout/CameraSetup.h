// From the view of a frame to VTK's camera.
#pragma once

#include "host/core/page/View3D.h"
#include "host/scene/layout/PixelRect.h"

#include <vtkCamera.h>

namespace corvane::scene {

/// Shows exactly what the view says. The clipping planes enclose the box of what is shown; a viewer
/// inside of it sees what is in front of him.
void setCamera(vtkCamera& camera, const host::View3D& view, const FrameArea& area,
               const host::Bounds& shown);

/// Turns the camera of the whole area into that of its visible part, but for the scale.
void setWindowCenter(vtkCamera& camera, const FrameArea& area);

} // namespace corvane::scene
