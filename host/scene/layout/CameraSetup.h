// Sets up VTK's camera for the view of a frame.
#pragma once

#include "host/core/page/View3D.h"
#include "host/scene/layout/PixelRect.h"

#include <vtkCamera.h>

namespace corvane::scene {

/// The clipping planes enclose the bounding box of what is shown; a viewer inside it sees what lies
/// ahead.
void setCamera(vtkCamera& camera, const host::View3D& view, const FrameArea& area,
               const host::Bounds& shown);

/// Turns the camera of the whole area into that of its visible part, but for the scale.
void setWindowCenter(vtkCamera& camera, const FrameArea& area);

} // namespace corvane::scene
