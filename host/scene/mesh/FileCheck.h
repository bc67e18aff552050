// Looking at a file before its library does.
#pragma once

#include "host/scene/mesh/ReadError.h"

#include <cstdint>
#include <string>
#include <vector>

namespace corvane::scene {

/// What the counts and offsets in a file tell. What cannot be is thrown as ReadFailure.
enum class Certainty {
    Harmless, ///< its library finds everything where the file says it is
    Unknown,  ///< there is something in it that was not understood: it has to be tried
};

struct FileLook {
    Certainty certainty = Certainty::Harmless;
    std::vector<std::string> otherFiles{}; ///< that the file is made of
};

/// The product, or the largest number where it is larger.
constexpr std::uint64_t cappedProduct(std::uint64_t a, std::uint64_t b) {
    std::uint64_t product = 0;
    return __builtin_mul_overflow(a, b, &product) ? ~std::uint64_t{0} : product;
}

/// Throws a ReadFailure: "it is damaged: what".
[[noreturn]] inline void refuse(const std::string& what) {
    throw ReadFailure("it is damaged: " + what);
}

} // namespace corvane::scene
