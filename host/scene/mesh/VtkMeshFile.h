// Files that one of VTK's readers reads whole.
#pragma once

#include "host/scene/mesh/MeshFile.h"

#include <vtkDataObject.h>

namespace corvane::scene {

/// What all these readers have in common: errors that VTK reports become ReadFailure, composite
/// data become parts.
class VtkMeshFile : public MeshFile {
public:
    using MeshFile::MeshFile;

protected:
    /// Runs the reader; errors that it reports to VTK are collected by the caller.
    virtual vtkSmartPointer<vtkDataObject> readObject() const = 0;
    virtual bool areWarningsErrors() const { return false; }

private:
    std::vector<MeshPart> readParts(int step) const final;
};

} // namespace corvane::scene
