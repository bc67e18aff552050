// Macros on the disk.
#pragma once

#include "host/core/files/PartFile.h"

#include <istream>
#include <memory>
#include <string>
#include <vector>

namespace corvane::host {

/// Throws HostError with the cause. Pipes and devices are refused, since they may have no end, or
/// nobody who writes to them.
std::unique_ptr<std::istream> openMacro(const std::string& fileName);

/// Throws HostError when a macro of that name cannot be written, which is better known before the
/// work that is to be recorded than behind it.
void expectWritable(const std::string& fileName, const PartFile::Tell& tell);

/// Writes the lines as a macro, whole or not at all. Throws HostError.
void writeMacro(const std::vector<std::string>& lines, const std::string& fileName,
                const PartFile::Tell& tell);

} // namespace corvane::host
