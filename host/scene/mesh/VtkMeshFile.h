// Files without times that are read with a reader of VTK.
#pragma once

#include "host/scene/mesh/MeshFile.h"

#include <vtkDataObject.h>

namespace corvane::scene {

/// Turns errors that VTK reports into ReadFailure, and composite data into parts.
class VtkMeshFile : public MeshFile {
public:
    using MeshFile::MeshFile;

protected:
    /// Runs the reader. The caller collects the errors that it reports to VTK.
    virtual vtkSmartPointer<vtkDataObject> readObject() const = 0;
    virtual bool areWarningsErrors() const { return false; }

private:
    std::vector<MeshPart> readParts(int step) const final;
};

} // namespace corvane::scene
