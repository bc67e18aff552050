// What a fuzzed reader must hold.
#pragma once

#include <cstdio>
#include <cstdlib>

namespace corvane::fuzz {

// Ends the program, so that the fuzzer keeps the bytes that led here.
inline void require(bool holds, const char* what) {
    if (holds) {
        return;
    }
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

} // namespace corvane::fuzz
