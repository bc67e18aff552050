// Meshes that are read when they are needed, and kept while there is room.
#include "host/scene/MeshCache.h"

namespace corvane::scene {

namespace {

std::size_t bytesOf(const std::vector<MeshPart>& parts) {
    std::size_t bytes = 0;
    for (const auto& part : parts)
        bytes += part.mesh->GetActualMemorySize() * std::size_t{1024};
    return bytes;
}

} // namespace

MeshCache::MeshCache(std::vector<MeshSource> sources, std::size_t budget,
                     std::shared_ptr<SceneStatistics> statistics)
    : m_sources(std::move(sources)), m_budget(budget), m_statistics(std::move(statistics)) {}

std::shared_ptr<const std::vector<MeshPart>> MeshCache::get(int index) {
    const std::lock_guard lock(m_mutex);
    if (const auto found = m_entries.find(index); found != m_entries.end()) {
        m_uses.splice(m_uses.begin(), m_uses, found->second.use);
        return found->second.parts;
    }
    const MeshSource& source = m_sources.at(static_cast<std::size_t>(index));
    auto parts = std::make_shared<const std::vector<MeshPart>>(source.file->read(source.step));
    ++m_statistics->fileReads;

    m_uses.push_front(index);
    const std::size_t bytes = bytesOf(*parts);
    m_entries[index] = {parts, bytes, m_uses.begin()};
    m_bytes += bytes;
    dropUnused();
    return parts;
}

void MeshCache::dropUnused() {
    while (m_bytes > m_budget && m_uses.size() > 1) {
        const auto last = m_entries.find(m_uses.back());
        m_bytes -= last->second.bytes;
        m_entries.erase(last);
        m_uses.pop_back();
    }
}

} // namespace corvane::scene
