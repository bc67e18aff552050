// What add-ons have of the host's memory.
#pragma once

#include "host/api/TracedCall.h"

#include <atomic>
#include <cstddef>
#include <mutex>
#include <unordered_set>

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
        m_things.insert(thing);
        ++heldThings();
    }
    bool has(const T* thing) const {
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
        const bool wasHere = m_things.erase(thing) != 0;
        heldThings() -= wasHere ? 1 : 0;
        return wasHere;
    }

    mutable std::mutex m_mutex;
    std::unordered_set<const T*> m_things;
};

} // namespace corvane::host
