// A compressed picture of an SWF movie.
#pragma once

#include <cstdint>
#include <vector>

namespace corvane::movie {

struct SwfBitmap {
    unsigned tag = 0;               ///< code of the defining tag
    std::vector<std::uint8_t> data; ///< contents of that tag after the character id
};

constexpr unsigned swfDefineBitsLossless = 20;
constexpr unsigned swfDefineBitsJpeg2 = 21;

} // namespace corvane::movie
