// OpenFOAM cases (.foam).
#pragma once

#include "host/scene/mesh/TimedMeshFile.h"

#include <mutex>

namespace corvane::scene {

/// The folder that contains the file is the case; the file itself only marks it, and is usually
/// empty.
/// Parts are "internalMesh" and the patches under their names, with the region before them
/// ("solid/wall") in cases of several regions. Values of cells are converted to points.
///
/// A case that was decomposed for a parallel run is read from its processor folders if they contain
/// more times.
class OpenFoamFile final : public TimedMeshFile {
public:
    using TimedMeshFile::TimedMeshFile;

protected:
    vtkSmartPointer<vtkAlgorithm> openReader() const override;
    std::vector<MeshPart> partsOf(vtkAlgorithm& reader) const override;
    bool mayMissVariables(double time) const override;

private:
    mutable std::once_flag m_checked;
};

} // namespace corvane::scene
