// A file that holds meshes, of whatever format.
#pragma once

#include <vtkDataSet.h>
#include <vtkSmartPointer.h>

#include <string>
#include <utility>
#include <vector>

namespace corvane::scene {

/// One mesh of a file that may hold several.
struct MeshPart {
    std::string name; ///< unique in the file; empty when the file holds one mesh without a name
    vtkSmartPointer<vtkDataSet> mesh;
};

/// To read another format, derive a class from this one and name it in MeshFormats.cpp.
class MeshFile {
public:
    explicit MeshFile(std::string path) : m_path(std::move(path)) {}
    virtual ~MeshFile() = default;
    MeshFile(const MeshFile&) = delete;
    MeshFile& operator=(const MeshFile&) = delete;

    const std::string& path() const { return m_path; }

    /// The solution times that the file knows, ascending. Empty: one state without a time.
    virtual std::vector<double> times() const { return {}; }

    /// Reads the meshes of one of the times (step 0 without times). Keeps no state, so that it can
    /// be called on any thread. Throws host::HostError.
    virtual std::vector<MeshPart> read(int step) const = 0;

private:
    std::string m_path;
};

} // namespace corvane::scene
