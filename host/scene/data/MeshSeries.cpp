#include "host/scene/data/MeshSeries.h"

#include "host/scene/formats/MeshFormats.h"

#include <algorithm>
#include <filesystem>
#include <map>

namespace corvane::scene {

namespace {

/// A mesh that never changes has one time.
void mergeIfStatic(MeshSeries& series) {
    const auto& sources = series.sourceOfTime;
    const bool isStatic = std::all_of(sources.begin(), sources.end(),
                                      [&](int source) { return source == sources.front(); });
    if (isStatic) {
        series.times.resize(1);
        series.sourceOfTime.resize(1);
    }
}

} // namespace

void MeshSeriesList::open(const std::string& path) {
    const MeshFormat& format = formatOf(path);
    if (format.readList != nullptr) {
        addList(format.readList(path));
    } else {
        addFile(format.open(path));
    }
}

void MeshSeriesList::addList(const std::vector<PvdPart>& parts) {
    std::map<std::string, int> sourceOfPath;
    for (const PvdPart& part : parts) {
        MeshSeries series{part.name, {}, {}};
        for (const auto& step : part.steps) {
            const auto [found, isNew] =
                sourceOfPath.emplace(step.path, static_cast<int>(m_sources.size()));
            if (isNew) {
                m_sources.push_back({openMeshFile(step.path), 0});
            }
            series.times.push_back(step.time);
            series.sourceOfTime.push_back(found->second);
        }
        mergeIfStatic(series);
        m_series.push_back(std::move(series));
    }
}

void MeshSeriesList::addFile(const std::shared_ptr<const MeshFile>& file) {
    MeshSeries series{std::filesystem::path(file->path()).stem().string(), file->times(), {}};
    if (series.times.empty()) {
        series.times.push_back(0.0);
    }
    for (int step = 0; step < static_cast<int>(series.times.size()); ++step) {
        series.sourceOfTime.push_back(static_cast<int>(m_sources.size()));
        m_sources.push_back({file, step});
    }
    m_series.push_back(std::move(series));
}

} // namespace corvane::scene
