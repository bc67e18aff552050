// The background of a frame, and colours that are readable on it.
#pragma once

#include "host/core/page/FrameStyle.h"
#include "host/scene/layout/PixelRect.h"

#include <vtkRenderer.h>

namespace corvane::scene {

/// A gradient from the colour at the bottom of the frame to a slightly hazy one at the top.
void setBackground(vtkRenderer& renderer, const host::Color& color, const FrameArea& area);

host::Color textColorOn(const host::Color& background); ///< nearly black, or white
host::Color lineColorOn(const host::Color& background); ///< of less contrast than text

} // namespace corvane::scene
