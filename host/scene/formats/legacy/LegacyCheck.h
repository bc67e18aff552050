// Whether VTK finds everything that a legacy VTK file counts.
#pragma once

#include "host/scene/mesh/FileCheck.h"

#include <string>

namespace corvane::scene {

/// Walks through the file from count to count. Throws ReadFailure.
FileLook checkLegacyFile(const std::string& path);

} // namespace corvane::scene
