// A thread-safe cache of values that are expensive to make.
#pragma once

#include <condition_variable>
#include <cstddef>
#include <functional>
#include <list>
#include <map>
#include <mutex>
#include <optional>
#include <set>
#include <utility>

namespace corvane::scene {

/// Keeps the most recently used values, up to a number of bytes; the latest is kept whatever its
/// size. Keys are ordered by <.
template <class Key, class Value>
class SharedCache {
public:
    using Maker = std::function<Value()>;
    using Measure = std::function<std::size_t(const Value&)>;

    /// budget: in bytes. bytesOf measures a value once, when it is made.
    SharedCache(std::size_t budget, Measure bytesOf)
        : m_budget(budget), m_bytesOf(std::move(bytesOf)) {}

    /// The value of the key, made if it is not cached: by one thread, while others that ask for the
    /// same key wait. What make() throws is passed on, and the next to ask tries again.
    Value get(const Key& key, const Maker& make) {
        std::unique_lock lock(m_mutex);
        m_made.wait(lock, [&] { return m_making.count(key) == 0; });
        if (const auto found = use(key)) {
            return *found;
        }
        const Making making(*this, lock, key);
        lock.unlock();
        Value value = make();
        const std::size_t bytes = m_bytesOf(value);
        lock.lock();
        keep(key, value, bytes);
        return value;
    }

    /// The value, if it is there, which counts as a use.
    std::optional<Value> find(const Key& key) {
        const std::lock_guard lock(m_mutex);
        return use(key);
    }

    bool has(const Key& key) const {
        const std::lock_guard lock(m_mutex);
        return m_entries.count(key) > 0;
    }

    /// Removes the values whose keys satisfy the predicate.
    template <class IsLikeThis>
    void forget(const IsLikeThis& isLikeThis) {
        const std::lock_guard lock(m_mutex);
        for (auto use = m_uses.begin(); use != m_uses.end();) {
            const Key& key = *use++;
            if (isLikeThis(key)) {
                drop(key);
            }
        }
    }

private:
    struct Entry {
        Value value;
        std::size_t bytes = 0;
        typename std::list<Key>::iterator use;
    };

    /// Marks a key as being made, until that has succeeded or failed.
    class Making {
    public:
        Making(SharedCache& cache, std::unique_lock<std::mutex>& lock, const Key& key)
            : m_cache(cache), m_lock(lock), m_key(key) {
            m_cache.m_making.insert(key);
        }
        ~Making() {
            if (!m_lock.owns_lock()) {
                m_lock.lock();
            }
            m_cache.m_making.erase(m_key);
            m_cache.m_made.notify_all();
        }
        Making(const Making&) = delete;
        Making& operator=(const Making&) = delete;

    private:
        SharedCache& m_cache;
        std::unique_lock<std::mutex>& m_lock;
        const Key& m_key;
    };

    std::optional<Value> use(const Key& key) {
        const auto found = m_entries.find(key);
        if (found == m_entries.end()) {
            return std::nullopt;
        }
        m_uses.splice(m_uses.begin(), m_uses, found->second.use);
        return found->second.value;
    }

    void keep(const Key& key, const Value& value, std::size_t bytes) {
        m_uses.push_front(key);
        m_entries.insert_or_assign(key, Entry{value, bytes, m_uses.begin()});
        m_bytes += bytes;
        while (m_bytes > m_budget && m_uses.size() > 1) {
            drop(m_uses.back());
        }
    }

    void drop(const Key& key) {
        const auto found = m_entries.find(key);
        const auto use = found->second.use;
        m_bytes -= found->second.bytes;
        m_entries.erase(found);
        m_uses.erase(use); // last, since key may refer to this element
    }

    const std::size_t m_budget;
    const Measure m_bytesOf;

    mutable std::mutex m_mutex;
    std::condition_variable m_made;
    std::set<Key> m_making;
    std::map<Key, Entry> m_entries;
    std::list<Key> m_uses; ///< the most recent one first
    std::size_t m_bytes = 0;
};

} // namespace corvane::scene
