#include "host/scene/data/MeshCache.h"

namespace corvane::scene {

namespace {

std::size_t bytesOf(const MeshCache::Parts& parts) {
    std::size_t bytes = 0;
    for (const auto& part : *parts) {
        bytes += part.mesh->GetActualMemorySize() * std::size_t{1024};
    }
    return bytes;
}

} // namespace

MeshCache::MeshCache(std::vector<MeshSource> sources, std::size_t budget,
                     std::shared_ptr<SceneStatistics> statistics)
    : m_sources(std::move(sources)),
      m_statistics(std::move(statistics)),
      m_parts(budget, bytesOf) {}

MeshCache::Parts MeshCache::get(int index) {
    return m_parts.get(index, [&] { return read(index); });
}

MeshCache::Parts MeshCache::read(int index) {
    const MeshSource& source = m_sources.at(static_cast<std::size_t>(index));
    auto parts = std::make_shared<const std::vector<MeshPart>>(source.file->read(source.step));
    ++m_statistics->fileReads;
    return parts;
}

} // namespace corvane::scene
