// Meshes that are read when they are needed, and kept while there is room.
#pragma once

#include "host/scene/MeshFile.h"
#include "host/scene/SceneStatistics.h"

#include <cstddef>
#include <list>
#include <memory>
#include <mutex>
#include <unordered_map>

namespace corvane::scene {

/// One readable state: a file, and which of its times.
struct MeshSource {
    std::shared_ptr<const MeshFile> file;
    int step = 0;
};

/// Keeps the sources used last, up to a number of bytes; the one used last is kept however large
/// it is. May be used from several threads.
class MeshCache {
public:
    MeshCache(std::vector<MeshSource> sources, std::size_t budget,
              std::shared_ptr<SceneStatistics> statistics);

    /// The meshes of sources[index], as they were passed to the constructor. Throws
    /// host::HostError.
    std::shared_ptr<const std::vector<MeshPart>> get(int index);

private:
    using Parts = std::shared_ptr<const std::vector<MeshPart>>;
    struct Entry {
        Parts parts;
        std::size_t bytes = 0;
        std::list<int>::iterator use;
    };

    void dropUnused();

    std::vector<MeshSource> m_sources;
    std::size_t m_budget;
    std::shared_ptr<SceneStatistics> m_statistics;

    std::mutex m_mutex;
    std::unordered_map<int, Entry> m_entries;
    std::list<int> m_uses; ///< the one used last comes first
    std::size_t m_bytes = 0;
};

} // namespace corvane::scene
