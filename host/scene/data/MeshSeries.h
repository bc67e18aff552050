// What a file given by the user holds: meshes through time, still unread.
#pragma once

#include "host/scene/data/MeshCache.h"
#include "host/scene/formats/PvdFile.h"

#include <memory>
#include <string>
#include <vector>

namespace corvane::scene {

/// Meshes that belong together through time.
struct MeshSeries {
    std::string name;
    std::vector<double> times; ///< ascending, at least one
    /// For each time an index into the sources; the same one where the same file is meant.
    std::vector<int> sourceOfTime;
};

/// Opens files and lists of files. Reads the lists, and of the files only what tells their kind
/// and times.
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
