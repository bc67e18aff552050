// A file that holds meshes, of whatever format.
#pragma once

#include <vtkDataSet.h>
#include <vtkSmartPointer.h>

#include <mutex>
#include <string>
#include <utility>
#include <vector>

namespace corvane::scene {

/// One mesh of a file that may hold several.
struct MeshPart {
    std::string name; ///< unique in the file; empty when the file holds one mesh without a name
    vtkSmartPointer<vtkDataSet> mesh;
};

/// To read another format, derive a class from this one and add a row to the table in
/// MeshFormats.cpp. What no reader may return, and how the user is told, is decided here.
class MeshFile {
public:
    explicit MeshFile(std::string path) : m_path(std::move(path)) {}
    virtual ~MeshFile() = default;
    MeshFile(const MeshFile&) = delete;
    MeshFile& operator=(const MeshFile&) = delete;

    const std::string& path() const { return m_path; }

    /// The solution times of the file, ascending. Empty: one state without a time. They are read
    /// once, on first use. Throws host::HostError.
    const std::vector<double>& times() const;

    /// Reads the meshes of one of the times (step 0 without times): at least one, and only sound
    /// ones. May be called on any thread. Throws host::HostError.
    std::vector<MeshPart> read(int step) const;

protected:
    /// Both throw ReadFailure; what libraries throw becomes a sentence for the user, too.
    virtual std::vector<double> readTimes() const { return {}; }
    virtual std::vector<MeshPart> readParts(int step) const = 0;

private:
    void refuseUnusable(const std::vector<MeshPart>& parts) const;

    std::string m_path;
    mutable std::once_flag m_timesRead;
    mutable std::vector<double> m_times;
};

} // namespace corvane::scene
