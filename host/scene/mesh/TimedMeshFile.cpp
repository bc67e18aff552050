#include "host/scene/mesh/TimedMeshFile.h"

#include "host/scene/mesh/MeshParts.h"
#include "host/scene/mesh/ReadError.h"
#include "host/scene/vtk/VtkMessages.h"

#include <vtkInformation.h>
#include <vtkStreamingDemandDrivenPipeline.h>

#include <algorithm>
#include <sstream>

namespace corvane::scene {

namespace {

std::string text(double time) {
    std::ostringstream stream;
    stream << time;
    return stream.str();
}

} // namespace

std::vector<double> TimedMeshFile::readTimes() const {
    std::vector<double> times;
    withReader(
        [&](vtkAlgorithm& reader, const VtkMessages& /*messages*/) { times = timesOf(reader); });
    return times;
}

std::vector<MeshPart> TimedMeshFile::readParts(int step) const {
    const std::vector<double>& known = times();
    const bool isLenient =
        !known.empty() && mayMissVariables(known.at(static_cast<std::size_t>(step)));
    std::vector<MeshPart> parts;
    withReader([&](vtkAlgorithm& reader, const VtkMessages& messages) {
        goTo(reader, step);
        parts = partsOf(reader);
        if (messages.hasErrors() && (parts.empty() || !isLenient)) {
            throw ReadFailure(messages.reason());
        }
    });
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
    const auto reader = openReader();
    if (messages.hasErrors()) {
        throw ReadFailure(messages.reason());
    }
    work(*reader, messages);
}

void TimedMeshFile::goTo(vtkAlgorithm& reader, int step) const {
    if (times().empty()) {
        reader.Update();
        return;
    }
    const double time = times()[static_cast<std::size_t>(step)];
    // Readers take the nearest time, which is wrong if a step has been deleted since.
    const std::vector<double> now = timesOf(reader);
    if (!std::binary_search(now.begin(), now.end(), time)) {
        throw ReadFailure("the time " + text(time) + " is not there any more");
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
