// Pictures in PNG files.
#pragma once

#include "host/core/ports/Picture.h"

#include <string>

namespace corvane::test {

/// Without the fourth channel, which is 255 everywhere. Throws std::runtime_error.
void writePng(const std::string& path, const host::Picture& picture);
host::Picture readPng(const std::string& path);

} // namespace corvane::test
