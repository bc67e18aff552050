// Files of several times that are read with a reader of VTK.
#pragma once

#include "host/scene/mesh/MeshFile.h"

#include <vtkAlgorithm.h>
#include <vtkSmartPointer.h>

#include <functional>
#include <mutex>
#include <vector>

namespace corvane::scene {

class VtkMessages;

/// Selects exact times, and turns errors that VTK reports into ReadFailure. Each call has a reader
/// of its own.
class TimedMeshFile : public MeshFile {
public:
    using MeshFile::MeshFile;

protected:
    /// A reader that has read the file's information and is set to read all of it. The caller
    /// collects the errors that it reports to VTK.
    virtual vtkSmartPointer<vtkAlgorithm> openReader() const = 0;
    virtual std::vector<MeshPart> partsOf(vtkAlgorithm& reader) const;
    /// Whether variables that cannot be read at this time are left out.
    virtual bool mayMissVariables(double /*time*/) const { return false; }
    /// Held while a reader exists. Null: several readers can work at the same time.
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
