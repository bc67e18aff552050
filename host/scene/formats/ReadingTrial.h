// Files that may bring a library down, and the program with it, are looked at before they are read.
#pragma once

#include "host/scene/mesh/FileCheck.h"

#include <string>

namespace corvane::scene {

/// Looks at the counts and offsets of a file.
using FileCheck = FileLook (*)(const std::string& path);
/// For formats of which no look can know.
FileLook alwaysUnknown(const std::string& path);

/// In place of a step: what the file tells of its contents.
constexpr int contentsOnly = -1;

/// Makes sure that reading this step of the file comes to an end: by the look, and where that does
/// not know, by reading it in a helper of the process server. A file that passed is not looked at
/// again before it changes. Throws ReadFailure, or the HostError that reading it in the helper
/// ended with.
void expectHarmless(const std::string& path, int step, FileCheck check);

} // namespace corvane::scene
