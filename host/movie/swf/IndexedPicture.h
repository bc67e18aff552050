// Pictures with a palette of up to 256 colours.
#pragma once

#include "host/core/ports/Picture.h"
#include "host/movie/swf/Palette.h"

#include <cstdint>
#include <vector>

namespace corvane::movie {

struct IndexedPicture {
    std::vector<PaletteColor> palette; ///< 1 to 256
    std::vector<std::uint8_t> indices; ///< into the palette; rows from the top
};

/// Exact for pictures of up to 256 colours; others are reduced to 256 colours chosen for them.
/// There is no dithering, which would surround thin lines with noise that flickers from picture to
/// picture. The picture must have at least one pixel.
IndexedPicture indexed(const host::Picture& picture);

} // namespace corvane::movie
