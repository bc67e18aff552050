// The time series of meshes in files, before any mesh is read.
#pragma once

#include "host/scene/data/MeshCache.h"
#include "host/scene/formats/PvdFile.h"

#include <memory>
#include <string>
#include <vector>

namespace corvane::scene {

/// One mesh, or group of meshes, over time.
struct MeshSeries {
    std::string name;
    std::vector<double> times; ///< ascending, at least one
    /// For each time an index into the sources; times that share a file and step share the index.
    std::vector<int> sourceOfTime;
};

/// Opens files and lists of files. Of a file with meshes, only its format and times are read.
class MeshSeriesList {
public:
    /// Throws host::HostError.
    void open(const std::string& path);

    const std::vector<MeshSeries>& series() const { return m_series; }
    const std::vector<MeshSource>& sources() const { return m_sources; }

private:
    void addList(const std::vector<PvdPart>& parts);
    void addFile(const std::shared_ptr<const MeshFile>& file);

    std::vector<MeshSeries> m_series;
    std::vector<MeshSource> m_sources;
};

} // namespace corvane::scene
