#include "host/scene/data/SceneDataSet.h"

#include <algorithm>
#include <atomic>

namespace corvane::scene {

namespace {

long nextId() {
    static std::atomic<long> last{0};
    return ++last;
}

ValueRange orZero(const ValueRange& range) {
    return range.isEmpty() ? ValueRange{0.0, 0.0} : range;
}

} // namespace

SceneDataSet::SceneDataSet(std::shared_ptr<MeshCache> cache)
    : m_id(nextId()), m_cache(std::move(cache)) {}

void SceneDataSet::addBlock(host::Block block, const std::vector<double>& times,
                            BlockSource source) {
    const int index = static_cast<int>(blocks.size());
    const bool isStatic = times.size() == 1;
    for (std::size_t i = 0; i < times.size(); ++i) {
        zones.push_back({index, times[i], isStatic ? 0 : index + 1L, true});
        m_sourceOfZone.push_back(source.sourceOfZone[i]);
    }
    blocks.push_back(std::move(block));
    m_partOfBlock.push_back(std::move(source.part));
}

void SceneDataSet::setVariables(std::vector<VariableRange> ranges) {
    m_ranges = std::move(ranges);
    variables.clear();
    for (const VariableRange& range : m_ranges) {
        const ValueRange whole = orZero(range.whole);
        variables.push_back({range.name, range.components, whole.minimum, whole.maximum});
    }
}

ValueRange SceneDataSet::rangeOf(const VariableRef& variable) const {
    const auto found = std::find_if(m_ranges.begin(), m_ranges.end(), [&](const auto& range) {
        return range.name == variable.array;
    });
    if (found == m_ranges.end()) {
        return {0.0, 0.0};
    }
    const bool isComponent = found->components == 3 && variable.component >= 0;
    return orZero(isComponent ? found->ofComponents[static_cast<std::size_t>(variable.component)]
                              : found->whole);
}

MeshId SceneDataSet::meshId(int zone) const {
    return {m_id, sourceOf(zone), zones[static_cast<std::size_t>(zone)].block};
}

vtkSmartPointer<vtkDataSet> SceneDataSet::mesh(int zone) const {
    const auto parts = m_cache->get(sourceOf(zone));
    const auto block = static_cast<std::size_t>(zones[static_cast<std::size_t>(zone)].block);
    const auto found = std::find_if(parts->begin(), parts->end(), [&](const MeshPart& part) {
        return part.name == m_partOfBlock[block];
    });
    return found == parts->end() ? nullptr : found->mesh;
}

int SceneDataSet::sourceOf(int zone) const {
    return m_sourceOfZone[static_cast<std::size_t>(zone)];
}

} // namespace corvane::scene
