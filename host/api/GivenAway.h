// What add-ons have of the host's memory.
#pragma once

#include <mutex>
#include <unordered_set>

namespace corvane::host {

/// What the trace is told then.
inline constexpr const char* notGivenAway = "freed before, or not from the host; left alone";

/// Remembers what was given to add-ons and not given back, so that freeing something twice, or
/// something that never came from here, is told to the trace and harms nothing. An address may be
/// given away again once it was freed: a second free that comes that late cannot be told from a
/// right one. Safe on any thread.
template <class T>
class GivenAway {
public:
    void add(const T* thing) {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_things.insert(thing);
    }
    bool has(const T* thing) const {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_things.count(thing) != 0;
    }
    /// False: it is not out there.
    bool remove(const T* thing) {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_things.erase(thing) != 0;
    }

private:
    mutable std::mutex m_mutex;
    std::unordered_set<const T*> m_things;
};

} // namespace corvane::host
