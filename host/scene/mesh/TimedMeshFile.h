// Files of several times that one of VTK's readers reads.
#pragma once

#include "host/scene/mesh/MeshFile.h"

#include <vtkAlgorithm.h>
#include <vtkSmartPointer.h>

#include <functional>
#include <mutex>
#include <vector>

namespace corvane::scene {

class VtkMessages;

/// What all these readers have in common: the times, the exact choice of one of them, and errors
/// that become host::HostError. Each call has a reader of its own; kept are only the times.
class TimedMeshFile : public MeshFile {
public:
    using MeshFile::MeshFile;

    /// Read once, when they are asked for first. Throws host::HostError.
    std::vector<double> times() const final;
    std::vector<MeshPart> read(int step) const final;

protected:
    /// A reader that knows what the file holds, and is set to read all of it. Errors that it
    /// reports to VTK are collected by the caller.
    virtual vtkSmartPointer<vtkAlgorithm> openReader() const = 0;
    virtual std::vector<MeshPart> partsOf(vtkAlgorithm& reader) const;
    /// Whether variables that cannot be read at this time are simply missing there.
    virtual bool mayMissVariables(double /*time*/) const { return false; }
    /// Held while a reader lives. Null: readers can work side by side.
    virtual std::mutex* libraryMutex() const { return nullptr; }

private:
    using Work = std::function<void(vtkAlgorithm& reader, const VtkMessages& messages)>;
    void withReader(const Work& work) const;
    void goTo(vtkAlgorithm& reader, int step) const;
    std::vector<double> timesOf(vtkAlgorithm& reader) const;

    mutable std::once_flag m_timesRead;
    mutable std::vector<double> m_times;
};

} // namespace corvane::scene
