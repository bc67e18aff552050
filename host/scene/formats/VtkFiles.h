// The formats that VTK's simple readers read: a file name in, one data object out.
#pragma once

#include "host/scene/mesh/VtkMeshFile.h"

namespace corvane::scene {

/// VTK's XML files, serial and parallel, of one mesh or of several blocks.
class VtkXmlFile final : public VtkMeshFile {
public:
    using VtkMeshFile::VtkMeshFile;

private:
    vtkSmartPointer<vtkDataObject> readObject() const override;
};

/// VTK's files from before XML.
class LegacyVtkFile final : public VtkMeshFile {
public:
    using VtkMeshFile::VtkMeshFile;

private:
    vtkSmartPointer<vtkDataObject> readObject() const override;
    /// The reader only warns when a file ends too early.
    bool areWarningsErrors() const override { return true; }
};

class StlFile final : public VtkMeshFile {
public:
    using VtkMeshFile::VtkMeshFile;

private:
    vtkSmartPointer<vtkDataObject> readObject() const override;
};

class ObjFile final : public VtkMeshFile {
public:
    using VtkMeshFile::VtkMeshFile;

private:
    vtkSmartPointer<vtkDataObject> readObject() const override;
};

} // namespace corvane::scene
