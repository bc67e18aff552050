// From the pixels as they were drawn to the finished picture.
#pragma once

#include "host/core/ports/Picture.h"

#include <cstdint>

namespace corvane::scene {

/// rgba: rows from the bottom, width * factor by height * factor pixels. Each pixel of the result
/// is the mean of factor by factor pixels, opaque; rows from the top.
host::Picture finishPicture(const std::uint8_t* rgba, int width, int height, int factor);

} // namespace corvane::scene
