// The background of a frame, and the colours that can be read on it.
#pragma once

#include "host/core/page/FrameStyle.h"
#include "host/scene/layout/PixelRect.h"

#include <vtkRenderer.h>

namespace corvane::scene {

/// The colour itself at the bottom of the frame, and a little deeper toward its top.
void setBackground(vtkRenderer& renderer, const host::Color& color, const FrameArea& area);

host::Color textColorOn(const host::Color& background); ///< nearly black, or white
host::Color lineColorOn(const host::Color& background); ///< less strong than text

} // namespace corvane::scene
