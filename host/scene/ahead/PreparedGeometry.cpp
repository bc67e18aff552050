#include "host/scene/ahead/PreparedGeometry.h"

#include "host/scene/geometry/StreamTubes.h"
#include "host/scene/vtk/VtkMessages.h"

#include <algorithm>

namespace corvane::scene {

namespace {

std::size_t bytesOf(const PreparedGeometry::Polygons& polygons) {
    return polygons->GetActualMemorySize() * std::size_t{1024};
}

std::vector<MeshId> meshesOf(const PictureContent& content, const SceneDataSet& data) {
    std::vector<MeshId> meshes;
    for (const int zone : content.zones) {
        meshes.push_back(data.meshId(zone));
    }
    return meshes;
}

bool hasAnyOf(const std::vector<MeshId>& meshes, const std::vector<MeshId>& others) {
    return std::any_of(others.begin(), others.end(), [&](const MeshId& mesh) {
        return std::find(meshes.begin(), meshes.end(), mesh) != meshes.end();
    });
}

} // namespace

// Each of the three caches gets enough of the budget to hold many time steps.
PreparedGeometry::PreparedGeometry(std::size_t budget, std::shared_ptr<SceneStatistics> statistics)
    : m_statistics(std::move(statistics)),
      m_plots(budget / 2, bytesOf),
      m_traces(budget / 4, bytesOf),
      m_tubes(budget / 4, bytesOf) {}

PreparedGeometry::Polygons PreparedGeometry::plot(const PlotRequest& request,
                                                  const SceneDataSet& data) {
    if (const auto found = m_plots.find(request.recipe)) {
        return *found;
    }
    const ReadAhead::Pause pause(m_ahead);
    return build(request, data);
}

PreparedGeometry::Streams PreparedGeometry::streams(const StreamRequest& request,
                                                    const SceneDataSet& data) {
    if (const auto found = findStreams(request)) {
        return *found;
    }
    const ReadAhead::Pause pause(m_ahead);
    return buildStreams(request, data);
}

void PreparedGeometry::prepare(const void* owner, std::shared_ptr<const SceneDataSet> data,
                               const PictureContent& next, const PictureContent& shown) {
    const std::vector<MeshId> inUse = meshesOf(shown, *data);
    ReadAhead::Steps steps;
    for (const PlotRequest& request : next.plots) {
        if (!hasAnyOf(inUse, {request.recipe.mesh})) {
            steps.emplace_back([this, data, request] { build(request, *data); });
        }
    }
    if (next.streams && !hasAnyOf(inUse, next.streams->recipe.meshes)) {
        steps.emplace_back([this, data, request = *next.streams] { buildStreams(request, *data); });
    }
    m_ahead.start(owner, std::move(steps));
}

void PreparedGeometry::forget(long dataSet) {
    const auto isOfDataSet = [dataSet](const StreamRecipe& recipe) {
        return !recipe.meshes.empty() && recipe.meshes.front().dataSet == dataSet;
    };
    m_plots.forget([&](const Recipe& recipe) { return recipe.mesh.dataSet == dataSet; });
    m_traces.forget(isOfDataSet);
    m_tubes.forget([&](const TubeKey& key) { return isOfDataSet(key.first); });
}

PreparedGeometry::Polygons PreparedGeometry::build(const PlotRequest& request,
                                                   const SceneDataSet& data) {
    return m_plots.get(request.recipe, [&] {
        const VtkMessages silenced;
        return buildGeometry(request.recipe, data.mesh(request.zone), *m_statistics);
    });
}

PreparedGeometry::Polygons PreparedGeometry::trace(const StreamRequest& request,
                                                   const SceneDataSet& data) {
    return m_traces.get(request.recipe, [&] {
        const VtkMessages silenced;
        std::vector<vtkSmartPointer<vtkDataSet>> meshes;
        for (const int zone : request.zones) {
            meshes.push_back(data.mesh(zone));
        }
        ++m_statistics->streamRuns;
        return traceStreams(request.recipe, meshes);
    });
}

PreparedGeometry::Streams PreparedGeometry::buildStreams(const StreamRequest& request,
                                                         const SceneDataSet& data) {
    const Polygons traces = trace(request, data);
    if (request.tubeRadius <= 0.0) {
        return {traces, nullptr};
    }
    const auto tubes = m_tubes.get({request.recipe, request.tubeRadius}, [&] {
        const VtkMessages silenced;
        ++m_statistics->tubeRuns;
        return tubesAround(*traces, request.tubeRadius);
    });
    return {traces, tubes};
}

std::optional<PreparedGeometry::Streams>
PreparedGeometry::findStreams(const StreamRequest& request) {
    const auto traces = m_traces.find(request.recipe);
    const auto tubes = request.tubeRadius > 0.0 ? m_tubes.find({request.recipe, request.tubeRadius})
                                                : std::optional<Polygons>(nullptr);
    if (!traces || !tubes) {
        return std::nullopt;
    }
    return Streams{*traces, *tubes};
}

} // namespace corvane::scene
