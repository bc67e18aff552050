// The table of data formats: what their files are called, and what reads them.
#pragma once

#include "host/core/ports/DataFormat.h"
#include "host/scene/formats/PvdFile.h"
#include "host/scene/mesh/MeshFile.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::scene {

/// A row of the table. A file of the format either holds meshes or lists files that do: exactly one
/// of open and readList is set.
struct MeshFormat {
    host::DataFormat format;
    std::unique_ptr<MeshFile> (*open)(const std::string& path) = nullptr; ///< reads nothing yet
    std::vector<PvdPart> (*readList)(const std::string& path) = nullptr;
    /// Recognises the format by the first bytes of a file. Null: by the extension only.
    bool (*isContent)(std::string_view start) = nullptr;
    bool mayBeEmpty = false; ///< the file only marks a folder
};

const std::vector<MeshFormat>& meshFormats();

/// Chooses by the extension, and by the first bytes when the extension is unknown. Throws
/// host::HostError when the file is missing, empty or of an unknown format.
const MeshFormat& formatOf(const std::string& path);

/// Reads no more than formatOf() does. Throws host::HostError, also when the file is a list.
std::unique_ptr<MeshFile> openMeshFile(const std::string& path);

} // namespace corvane::scene
