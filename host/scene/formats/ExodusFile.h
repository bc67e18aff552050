// Exodus II files (.e .exo .ex2).
#pragma once

#include "host/scene/mesh/TimedMeshFile.h"

namespace corvane::scene {

/// The element blocks become parts, with the variables of nodes and elements; displacements move
/// the nodes.
class ExodusFile final : public TimedMeshFile {
public:
    using TimedMeshFile::TimedMeshFile;

protected:
    vtkSmartPointer<vtkAlgorithm> openReader() const override;
    std::vector<MeshPart> partsOf(vtkAlgorithm& reader) const override;
    std::mutex* libraryMutex() const override;

private:
    mutable std::once_flag m_checked;
};

} // namespace corvane::scene
