// Work that waits until the event loop has nothing else to do.
#pragma once

#include <deque>
#include <functional>

namespace corvane::host {

class IdleTimer;

class IdleQueue {
public:
    explicit IdleQueue(IdleTimer* timer) : m_timer(timer) {}

    /// Each entry runs once, in order; duplicates are kept. Ignored after close().
    void add(std::function<void()> work);
    /// Runs the entries that were there when it was called; what they add runs the next time.
    /// Called from the top-level event loop only.
    void run();
    bool isEmpty() const { return m_work.empty(); }
    void close(); ///< drops everything, for good

    /// How an entry is called; the application puts its exception wall here.
    std::function<void(const std::function<void()>&)> caller;

private:
    IdleTimer* m_timer;
    std::deque<std::function<void()>> m_work;
    bool m_closed = false;
};

} // namespace corvane::host
