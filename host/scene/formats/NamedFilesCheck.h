// Finds files that VTK's reader of XML files would wait for, or follow in circles.
#pragma once

#include <string>

namespace corvane::scene {

/// Looks at the files that a VTK XML file names, and at those that they name. Throws ReadFailure
/// when one of them is no regular file, or names itself. All are inputs of this process from then
/// on; what is missing is left to VTK's reader.
void checkNamedFiles(const std::string& path);

} // namespace corvane::scene
