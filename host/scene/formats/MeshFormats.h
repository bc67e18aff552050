// Which class reads which file.
#pragma once

#include "host/scene/mesh/MeshFile.h"

#include <memory>

namespace corvane::scene {

/// Chooses by the extension, and by the first bytes when the extension says nothing. Reads nothing
/// else. Throws host::HostError when the file is missing, empty or of an unknown kind.
std::unique_ptr<MeshFile> openMeshFile(const std::string& path);

/// Whether the extension is that of a list of files through time.
bool isSeriesFile(const std::string& path);

} // namespace corvane::scene
