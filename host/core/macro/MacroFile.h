// Macros on the disk.
#pragma once

#include <string>
#include <vector>

namespace corvane::host {

/// Writes the lines as a macro, whole or not at all. Throws HostError.
void writeMacro(const std::vector<std::string>& lines, const std::string& fileName);

} // namespace corvane::host
