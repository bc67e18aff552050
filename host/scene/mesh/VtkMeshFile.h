// Files that one of VTK's readers reads whole.
#pragma once

#include "host/scene/mesh/MeshFile.h"

#include <vtkDataObject.h>

namespace corvane::scene {

/// What all these readers have in common: errors become host::HostError, composite data become
/// parts.
class VtkMeshFile : public MeshFile {
public:
    using MeshFile::MeshFile;
    std::vector<MeshPart> read(int step) const final;

protected:
    /// Runs the reader; errors that it reports to VTK are collected by the caller.
    virtual vtkSmartPointer<vtkDataObject> readObject() const = 0;
    virtual bool areWarningsErrors() const { return false; }

private:
    vtkSmartPointer<vtkDataObject> readOrRefuse() const;
};

} // namespace corvane::scene
