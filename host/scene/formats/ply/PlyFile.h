// Surfaces in PLY files.
#pragma once

#include "host/scene/mesh/MeshFile.h"

namespace corvane::scene {

/// Reads points, faces, and the other numbers of the points as arrays. VTK's own reader corrupts
/// memory when such a file ends too early, and knows one of the two usual names of the faces' list.
class PlyFile final : public MeshFile {
public:
    using MeshFile::MeshFile;

private:
    std::vector<MeshPart> readParts(int step) const override;
};

} // namespace corvane::scene
