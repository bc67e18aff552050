// Files of several times that one of VTK's readers reads.
#include "host/scene/mesh/TimedMeshFile.h"

#include "host/scene/mesh/MeshCheck.h"
#include "host/scene/mesh/MeshParts.h"
#include "host/scene/mesh/ReadError.h"
#include "host/scene/vtk/VtkMessages.h"

#include <vtkInformation.h>
#include <vtkStreamingDemandDrivenPipeline.h>

#include <algorithm>
#include <new>
#include <sstream>
#include <stdexcept>

namespace corvane::scene {

namespace {

std::string text(double time) {
    std::ostringstream stream;
    stream << time;
    return stream.str();
}

} // namespace

std::vector<double> TimedMeshFile::times() const {
    std::call_once(m_timesRead, [this] {
        withReader([this](vtkAlgorithm& reader, const VtkMessages& /*messages*/) {
            m_times = timesOf(reader);
        });
    });
    return m_times;
}

std::vector<MeshPart> TimedMeshFile::read(int step) const {
    const std::vector<double> known = times();
    const bool isLenient =
        !known.empty() && mayMissVariables(known.at(static_cast<std::size_t>(step)));
    std::vector<MeshPart> parts;
    withReader([&](vtkAlgorithm& reader, const VtkMessages& messages) {
        goTo(reader, step);
        parts = partsOf(reader);
        if (messages.hasErrors() && (parts.empty() || !isLenient)) {
            throw readError(path(), messages.reason());
        }
    });
    if (parts.empty()) {
        throw readError(path(), "it holds no mesh");
    }
    for (const MeshPart& part : parts) {
        if (!isSound(*part.mesh)) {
            throw readError(path(), "its mesh \"" + part.name + "\" is damaged");
        }
    }
    return parts;
}

std::vector<MeshPart> TimedMeshFile::partsOf(vtkAlgorithm& reader) const {
    return meshParts(reader.GetOutputDataObject(0));
}

void TimedMeshFile::withReader(const Work& work) const {
    std::unique_lock<std::mutex> lock;
    if (std::mutex* const mutex = libraryMutex()) {
        lock = std::unique_lock(*mutex);
    }
    const VtkMessages messages;
    try {
        const auto reader = openReader();
        if (messages.hasErrors()) {
            throw readError(path(), messages.reason());
        }
        work(*reader, messages);
    } catch (const std::bad_alloc&) {
        throw readError(path(), tooLargeReason);
    } catch (const std::length_error&) {
        throw readError(path(), tooLargeReason);
    }
}

void TimedMeshFile::goTo(vtkAlgorithm& reader, int step) const {
    if (m_times.empty()) {
        reader.Update();
        return;
    }
    const double time = m_times[static_cast<std::size_t>(step)];
    // Readers take the nearest time, which is wrong when a step was deleted meanwhile.
    const std::vector<double> now = timesOf(reader);
    if (!std::binary_search(now.begin(), now.end(), time)) {
        throw readError(path(), "the time " + text(time) + " is not there any more");
    }
    reader.UpdateTimeStep(time);
}

std::vector<double> TimedMeshFile::timesOf(vtkAlgorithm& reader) const {
    vtkInformation* const information = reader.GetOutputInformation(0);
    auto* const key = vtkStreamingDemandDrivenPipeline::TIME_STEPS();
    if (information == nullptr || information->Has(key) == 0) {
        return {};
    }
    const double* const first = information->Get(key);
    std::vector<double> times(first, first + information->Length(key));
    std::sort(times.begin(), times.end());
    times.erase(std::unique(times.begin(), times.end()), times.end());
    return times;
}

} // namespace corvane::scene
