// Counts locks by owner.
#include "host/core/addons/Locks.h"

#include <numeric>

namespace corvane::host {

void Locks::start(Owner owner) {
    ++m_depths[owner];
    ++m_total;
}

bool Locks::finish(Owner owner) {
    const auto found = m_depths.find(owner);
    if (found == m_depths.end()) {
        return false;
    }
    --m_total;
    if (--found->second == 0) {
        m_depths.erase(found);
    }
    return true;
}

int Locks::depthOf(Owner owner) const {
    const auto found = m_depths.find(owner);
    return found == m_depths.end() ? 0 : found->second;
}

void Locks::restore(Snapshot snapshot) noexcept {
    m_depths.swap(snapshot);
    m_total = std::accumulate(
        m_depths.begin(), m_depths.end(), 0,
        [](int sum, const Snapshot::value_type& entry) { return sum + entry.second; });
}

} // namespace corvane::host
