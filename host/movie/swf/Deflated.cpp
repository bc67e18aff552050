#include "host/movie/swf/Deflated.h"

#include <zlib.h>

#include <new>

namespace corvane::movie {

std::vector<std::uint8_t> deflated(const std::vector<std::uint8_t>& bytes,
                                   FlashCompressionType_e aim) {
    const int effort = aim == FlashCompressionType_SmallestSize ? Z_BEST_COMPRESSION : Z_BEST_SPEED;
    uLongf size = compressBound(static_cast<uLong>(bytes.size()));
    std::vector<std::uint8_t> result(size);
    // With room for the largest possible result, lack of memory is the only error left.
    if (compress2(result.data(), &size, bytes.data(), static_cast<uLong>(bytes.size()), effort) !=
        Z_OK) {
        throw std::bad_alloc();
    }
    result.resize(size);
    return result;
}

} // namespace corvane::movie
