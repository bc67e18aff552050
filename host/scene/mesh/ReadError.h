// The sentences for files that cannot be read.
#pragma once

#include "host/core/base/HostError.h"

#include <string>

namespace corvane::scene {

/// What is said when memory is asked for that is not there: sizes are taken from the file, and may
/// be anything when it is damaged.
constexpr const char* tooLargeReason = "it is damaged, or larger than this machine's memory";

/// "path cannot be read: reason."
host::HostError readError(const std::string& path, const std::string& reason);

/// Throws a readError when the path is not that of a readable file with something in it.
void checkReadable(const std::string& path);

} // namespace corvane::scene
