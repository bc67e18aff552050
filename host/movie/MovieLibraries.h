// The libraries that movies are made with.
#pragma once

#include <string>

namespace corvane::movie {

/// Names and versions, as they are loaded, and the encoder of MPEG-4 files.
std::string movieLibraries();

} // namespace corvane::movie
