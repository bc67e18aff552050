// Averages supersampled pixels into the finished picture.
#pragma once

#include "host/core/ports/Picture.h"

#include <cstdint>

namespace corvane::scene {

/// rgba: width * factor by height * factor pixels, bottom row first. Each pixel of the result is
/// the mean of factor by factor pixels, and opaque; the top row comes first.
host::Picture finishPicture(const std::uint8_t* rgba, int width, int height, int factor);

} // namespace corvane::scene
