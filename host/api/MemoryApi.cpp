// Strings and arrays that cross the boundary. They are freed whether or not there is an
// application, since add-ons do so when the process ends too.
#include "hostapi/CorMemory.h"

#include "host/api/AddOnMemory.h"
#include "host/api/TracedCall.h"

using namespace corvane::host;

namespace {

/// No text is this long; a larger number was computed wrongly.
constexpr long longestString = 1L << 30;

} // namespace

char* CorUtilStringAlloc(long maxLength) {
    const Operation operation("CorUtilStringAlloc");
    if (!mayProceedUntraced(operation, true)) {
        return nullptr;
    }
    if (maxLength < 0 || maxLength > longestString) {
        reportMisuse(operation, "the length is out of range");
        return nullptr;
    }
    return static_cast<char*>(allocateForAddOn(static_cast<std::size_t>(maxLength) + 1, 1));
}

void CorUtilStringDealloc(char** s) {
    takeBack("CorUtilStringDealloc", s);
}

void CorUtilArrayDealloc(void** a) {
    takeBack("CorUtilArrayDealloc", a);
}
