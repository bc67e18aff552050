// A compressed picture of an SWF movie.
#pragma once

#include <cstdint>
#include <vector>

namespace corvane::movie {

struct SwfBitmap {
    unsigned tag = 0;               ///< the code of the tag that defines it
    std::vector<std::uint8_t> data; ///< what follows the character's id in that tag
};

constexpr unsigned swfDefineBitsLossless = 20;
constexpr unsigned swfDefineBitsJpeg2 = 21;

} // namespace corvane::movie
