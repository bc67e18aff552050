// Whether the faces of an OBJ file have the points that they name.
#pragma once

#include "host/scene/mesh/FileCheck.h"

#include <string>

namespace corvane::scene {

/// Throws ReadFailure where they have not: VTK's reader does not look before it takes them.
FileLook checkObjFile(const std::string& path);

} // namespace corvane::scene
