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

/// What all these readers have in common: the times, the exact choice of one of them, and errors of
/// VTK that become ReadFailure. Each call has a reader of its own.
class TimedMeshFile : public MeshFile {
public:
    using MeshFile::MeshFile;

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
    std::vector<double> readTimes() const final;
    std::vector<MeshPart> readParts(int step) const final;

    using Work = std::function<void(vtkAlgorithm& reader, const VtkMessages& messages)>;
    void withReader(const Work& work) const;
    void goTo(vtkAlgorithm& reader, int step) const;
    std::vector<double> timesOf(vtkAlgorithm& reader) const;
};

} // namespace corvane::scene
