// Surfaces in PLY files.
#pragma once

#include "host/scene/mesh/MeshFile.h"

namespace corvane::scene {

/// Reads points and faces, and the other properties of the points as arrays. VTK's own reader
/// corrupts memory when a file ends too early, and knows only one of the two usual names of the
/// list of a face.
class PlyFile final : public MeshFile {
public:
    using MeshFile::MeshFile;

private:
    std::vector<MeshPart> readParts(int step) const override;
};

} // namespace corvane::scene
