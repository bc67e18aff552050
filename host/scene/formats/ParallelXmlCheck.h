// Finds parallel XML files that crash VTK's reader.
#pragma once

#include <string>

namespace corvane::scene {

/// Throws ReadFailure when the file is a parallel one whose points do not have three
/// coordinates: VTK's reader crashes on it. Other errors are left to that reader.
void checkParallelXml(const std::string& path);

} // namespace corvane::scene
