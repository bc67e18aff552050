// Compression in the zlib format.
#pragma once

#include "hostapi/CorEnums.h"

#include <cstdint>
#include <vector>

namespace corvane::movie {

/// Lossless; the aim chooses between speed and size. Throws std::bad_alloc.
std::vector<std::uint8_t> deflated(const std::vector<std::uint8_t>& bytes,
                                   FlashCompressionType_e aim);

} // namespace corvane::movie
