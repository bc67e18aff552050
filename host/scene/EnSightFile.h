// EnSight cases (.case).
#pragma once

#include "host/scene/TimedMeshFile.h"

namespace corvane::scene {

/// EnSight 6 and Gold, text and binary. The parts of the geometry become parts.
class EnSightFile final : public TimedMeshFile {
public:
    using TimedMeshFile::TimedMeshFile;

protected:
    vtkSmartPointer<vtkAlgorithm> openReader() const override;
};

} // namespace corvane::scene
