// The background of a frame, and the colours that can be read on it.
#pragma once

#include "host/core/FrameStyle.h"

#include <vtkRenderer.h>

namespace corvane::scene {

/// The colour itself at the bottom, and a little deeper toward the top.
void setBackground(vtkRenderer& renderer, const host::Color& color);

host::Color textColorOn(const host::Color& background); ///< nearly black, or white
host::Color lineColorOn(const host::Color& background); ///< less strong than text

} // namespace corvane::scene
