// Bytes in the ZLIB format.
#pragma once

#include "hostapi/CorEnums.h"

#include <cstdint>
#include <vector>

namespace corvane::movie {

/// The aim chooses the effort; the bytes come back the same. Throws std::bad_alloc.
std::vector<std::uint8_t> deflated(const std::vector<std::uint8_t>& bytes,
                                   FlashCompressionType_e aim);

} // namespace corvane::movie
