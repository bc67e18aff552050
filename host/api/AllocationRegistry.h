// What add-ons have of the host's memory.
#pragma once

#include "host/api/TracedCall.h"

#include <atomic>
#include <cstddef>
#include <mutex>
#include <unordered_set>
#include <utility>

namespace corvane::host {

/// Of all registries, for themselves.
std::atomic<std::size_t>& heldThings();

/// How many strings, arrays, sets and argument lists add-ons have not given back.
inline std::size_t thingsHeldByAddOns() {
    return heldThings();
}

/// Remembers what was given to add-ons and not given back, so that freeing something twice, or
/// something that never came from here, is told to the trace and harms nothing. An address may be
/// given away again once it was freed: a second free that comes that late cannot be told from a
/// right one. Safe on any thread.
template <class T>
class AllocationRegistry {
public:
    void add(const T* thing) {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (m_spare.empty()) {
            m_things.insert(thing);
        } else {
            m_spare.value() = thing;
            m_things.insert(std::move(m_spare));
        }
        ++heldThings();
        m_latest = thing;
    }
    bool has(const T* thing) const {
        if (thing == m_latest) {
            return thing != nullptr;
        }
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_things.count(thing) != 0;
    }
    /// Does free(thing), if it is out there; null is nothing.
    template <class Free>
    void takeBack(const Operation& operation, T* thing, const Free& free) {
        if (!thing) {
            return;
        }
        if (remove(thing)) {
            free(thing);
        } else {
            reportMisuse(operation, "freed before, or not from the host; left alone");
        }
    }

private:
    bool remove(const T* thing) {
        const std::lock_guard<std::mutex> lock(m_mutex);
        auto node = m_things.extract(thing);
        if (node.empty()) {
            return false;
        }
        --heldThings();
        m_spare = std::move(node);
        if (m_latest == thing) {
            m_latest = nullptr;
        }
        return true;
    }

    using Things = std::unordered_set<const T*>;

    mutable std::mutex m_mutex;
    Things m_things;
    // Add-ons use what they were given last, and give it back, many times a frame.
    std::atomic<const T*> m_latest = nullptr; ///< null: given back
    typename Things::node_type m_spare;       ///< of what was given back last
};

} // namespace corvane::host
