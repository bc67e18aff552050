// Reads simulation results from files.
#include "host/scene/DataReaders.h"

#include "host/core/HostError.h"
#include "host/scene/MeshParts.h"
#include "host/scene/MeshSeries.h"
#include "host/scene/SceneDataSet.h"
#include "host/scene/SceneStatistics.h"
#include "host/scene/VariableRanges.h"

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

void addSeries(SceneDataSet& data, MeshCache& cache, const MeshSeries& series) {
    const auto first = cache.get(series.sourceOfTime.front());
    for (const MeshPart& part : *first) {
        const std::string name = part.name.empty() ? series.name : series.name + "/" + part.name;
        data.addBlock({name, meshDimension(*part.mesh)}, series.times,
                      {part.name, series.sourceOfTime});
        addBounds(data.bounds, *part.mesh);
    }
}

/// Of the first, the middle and the last time.
std::vector<VariableRange> rangesOf(const std::vector<MeshSeries>& allSeries, MeshCache& cache) {
    VariableRanges ranges;
    for (const MeshSeries& series : allSeries) {
        const auto& sources = series.sourceOfTime;
        const std::set<int> looked{sources.front(), sources[sources.size() / 2], sources.back()};
        for (const int source : looked)
            for (const MeshPart& part : *cache.get(source))
                ranges.add(*part.mesh);
    }
    return ranges.ranges();
}

} // namespace

DataReaders::DataReaders(std::size_t memoryBudget, std::shared_ptr<SceneStatistics> statistics)
    : m_memoryBudget(memoryBudget),
      m_statistics(statistics ? std::move(statistics) : std::make_shared<SceneStatistics>()) {}

std::shared_ptr<const host::DataSet> DataReaders::read(const std::vector<std::string>& files) {
    if (files.empty())
        throw host::HostError("No data can be read: no file was named.");
    MeshSeriesList list;
    for (const std::string& file : files)
        list.open(file);

    const auto cache = std::make_shared<MeshCache>(list.sources(), m_memoryBudget, m_statistics);
    auto data = std::make_shared<SceneDataSet>(cache);
    data->files = files;
    for (const MeshSeries& series : list.series())
        addSeries(*data, *cache, series);
    data->setVariables(rangesOf(list.series(), *cache));
    return data;
}

} // namespace corvane::scene
