// Whether the corners in an STL file are points.
#pragma once

#include "host/scene/mesh/FileCheck.h"

#include <string>

namespace corvane::scene {

/// Throws ReadFailure when it tells more triangles than it can hold, for which VTK's reader makes
/// room, or when a coordinate is no finite number: the reader sorts the points into boxes.
FileLook checkStlFile(const std::string& path);

} // namespace corvane::scene
