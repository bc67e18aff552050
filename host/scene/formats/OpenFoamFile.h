// OpenFOAM cases (.foam).
#pragma once

#include "host/scene/mesh/TimedMeshFile.h"

namespace corvane::scene {

/// The folder around the named file is the case; the file itself marks it and is empty as a rule.
/// Parts are "internalMesh" and the patches under their names, with the region before them
/// ("solid/wall") in cases of several regions. Values of cells are carried to the points.
///
/// A case that was divided for a parallel run is read from its processor folders when there are
/// more times in them.
class OpenFoamFile final : public TimedMeshFile {
public:
    using TimedMeshFile::TimedMeshFile;

protected:
    vtkSmartPointer<vtkAlgorithm> openReader() const override;
    std::vector<MeshPart> partsOf(vtkAlgorithm& reader) const override;
    bool mayMissVariables(double time) const override;
};

} // namespace corvane::scene
