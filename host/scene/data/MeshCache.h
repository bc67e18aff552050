// Meshes that are read when they are needed, and kept while there is room.
#pragma once

#include "host/scene/data/SceneStatistics.h"
#include "host/scene/data/SharedCache.h"
#include "host/scene/mesh/MeshFile.h"

#include <cstddef>
#include <memory>
#include <vector>

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
    using Parts = std::shared_ptr<const std::vector<MeshPart>>;

    MeshCache(std::vector<MeshSource> sources, std::size_t budget,
              std::shared_ptr<SceneStatistics> statistics);

    /// The meshes of sources[index], as they were passed to the constructor. Throws
    /// host::HostError.
    Parts get(int index);

private:
    Parts read(int index);

    std::vector<MeshSource> m_sources;
    std::shared_ptr<SceneStatistics> m_statistics;
    SharedCache<int, Parts> m_parts;
};

} // namespace corvane::scene
