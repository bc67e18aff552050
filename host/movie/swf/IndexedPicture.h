// Pictures of up to 256 colours.
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

/// A picture of up to 256 colours comes back exactly; others get the 256 colours that suit them
/// best. There is no dithering: it would put noise round thin lines and into every next picture.
/// The picture has at least one pixel.
IndexedPicture indexed(const host::Picture& picture);

} // namespace corvane::movie
