// Where the add-on lies.
#pragma once

#include <string>

namespace corvane::app {

struct Options;

/// The library of the options, else the one that comes with the program.
std::string addOnLibrary(const Options& options);

} // namespace corvane::app
