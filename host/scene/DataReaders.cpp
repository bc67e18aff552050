#include "host/scene/DataReaders.h"

#include "host/core/base/HostError.h"
#include "host/scene/data/MeshSeries.h"
#include "host/scene/data/SceneDataSet.h"
#include "host/scene/data/SceneStatistics.h"
#include "host/scene/data/VariableRanges.h"
#include "host/scene/formats/MeshFormats.h"
#include "host/scene/mesh/MeshParts.h"

#include <algorithm>
#include <array>
#include <set>

namespace corvane::scene {

namespace {

void addBounds(host::Bounds& bounds, vtkDataSet& mesh) {
    std::array<double, 6> box{};
    mesh.GetBounds(box.data());
    bounds.add({box[0], box[2], box[4]});
    bounds.add({box[1], box[3], box[5]});
}

/// The sources of the first, the middle and the last time. They represent the whole series, since
/// reading all of it may take minutes.
std::vector<int> samplesOf(const MeshSeries& series) {
    const auto& sources = series.sourceOfTime;
    std::vector<int> samples{sources.front()};
    for (const int source : {sources[sources.size() / 2], sources.back()}) {
        if (std::find(samples.begin(), samples.end(), source) == samples.end()) {
            samples.push_back(source);
        }
    }
    return samples;
}

/// A block may appear after the first time, such as particles that enter the flow.
void addSeries(SceneDataSet& data, MeshCache& cache, const MeshSeries& series) {
    std::set<std::string> known;
    for (const int source : samplesOf(series)) {
        const auto parts = cache.get(source);
        for (const MeshPart& part : *parts) {
            if (!known.insert(part.name).second) {
                continue;
            }
            const std::string name =
                part.name.empty() ? series.name : series.name + "/" + part.name;
            data.addBlock({name, meshDimension(*part.mesh)}, series.times,
                          {part.name, series.sourceOfTime});
            addBounds(data.bounds, *part.mesh);
        }
    }
}

std::vector<VariableRange> rangesOf(const std::vector<MeshSeries>& allSeries, MeshCache& cache) {
    VariableRanges ranges;
    for (const MeshSeries& series : allSeries) {
        for (const int source : samplesOf(series)) {
            const auto parts = cache.get(source);
            for (const MeshPart& part : *parts) {
                ranges.add(*part.mesh);
            }
        }
    }
    return ranges.ranges();
}

} // namespace

DataReaders::DataReaders(std::size_t memoryBudget, std::shared_ptr<SceneStatistics> statistics)
    : m_memoryBudget(memoryBudget),
      m_statistics(statistics ? std::move(statistics) : std::make_shared<SceneStatistics>()) {}

std::vector<host::DataFormat> DataReaders::formats() const {
    std::vector<host::DataFormat> formats;
    for (const MeshFormat& row : meshFormats()) {
        formats.push_back(row.format);
    }
    return formats;
}

std::shared_ptr<const host::DataSet> DataReaders::read(const std::vector<std::string>& files) {
    if (files.empty()) {
        throw host::HostError("No data can be read: no file was named.");
    }
    MeshSeriesList list;
    for (const std::string& file : files) {
        list.open(file);
    }

    const auto cache = std::make_shared<MeshCache>(list.sources(), m_memoryBudget, m_statistics);
    auto data = std::make_shared<SceneDataSet>(cache);
    data->files = files;
    for (const MeshSeries& series : list.series()) {
        addSeries(*data, *cache, series);
    }
    data->setVariables(rangesOf(list.series(), *cache));
    return data;
}

} // namespace corvane::scene
