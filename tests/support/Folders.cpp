// The one source that is compiled with the folders, so that checkouts share all others.
#include "tests/support/Folders.h"

namespace corvane::test {

std::string sourceFile(const std::string& name) {
    return CORVANE_SOURCE_DIR "/" + name;
}

std::string builtFile(const std::string& name) {
    return CORVANE_BINARY_DIR "/" + name;
}

} // namespace corvane::test
