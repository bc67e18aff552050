// CGNS files (.cgns).
#pragma once

#include "host/scene/mesh/TimedMeshFile.h"

namespace corvane::scene {

/// The zones become parts under the names of their base ("Base/Zone 1"). Boundary patches are not
/// read.
class CgnsFile final : public TimedMeshFile {
public:
    using TimedMeshFile::TimedMeshFile;

protected:
    vtkSmartPointer<vtkAlgorithm> openReader() const override;
    std::mutex* libraryMutex() const override;
};

} // namespace corvane::scene
