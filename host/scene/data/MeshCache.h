// The meshes of a data set: read on demand, and cached.
#pragma once

#include "host/scene/data/SceneStatistics.h"
#include "host/scene/data/SharedCache.h"
#include "host/scene/mesh/MeshFile.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace corvane::scene {

/// A file and one of its time steps.
struct MeshSource {
    std::shared_ptr<const MeshFile> file;
    int step = 0;
};

/// Keeps the most recently used meshes, up to a number of bytes; the latest is kept whatever its
/// size. Thread-safe.
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
