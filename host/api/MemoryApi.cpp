// Strings and arrays that cross the boundary. They are freed whether or not there is an
// application, since add-ons do so when the process ends too.
#include "hostapi/CorMemory.h"

#include "host/api/TracedCall.h"

#include <cstdlib>

using namespace corvane::host;

namespace {

/// No text is this long; a larger number was computed wrongly.
constexpr long longestString = 1L << 30;

} // namespace

char* CorUtilStringAlloc(long maxLength) {
    if (!mayProceedUntraced("CorUtilStringAlloc", true)) {
        return nullptr;
    }
    if (maxLength < 0 || maxLength > longestString) {
        reportMisuse("CorUtilStringAlloc", "the length is out of range");
        return nullptr;
    }
    return static_cast<char*>(std::calloc(static_cast<std::size_t>(maxLength) + 1, 1));
}

void CorUtilStringDealloc(char** s) {
    if (s && mayProceedUntraced("CorUtilStringDealloc", false)) {
        std::free(*s);
        *s = nullptr;
    }
}

void CorUtilArrayDealloc(void** a) {
    if (a && mayProceedUntraced("CorUtilArrayDealloc", false)) {
        std::free(*a);
        *a = nullptr;
    }
}
