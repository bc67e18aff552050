// Work that waits until the event loop has nothing else to do.
#pragma once

#include "host/core/addons/AddOnCaller.h"

#include <deque>
#include <functional>
#include <string>

namespace corvane::host {

class IdleTimer;

class IdleQueue {
public:
    explicit IdleQueue(IdleTimer* timer) : m_timer(timer) {}

    /// Each entry runs once, in order; duplicates are kept. owner names the add-on for the trace.
    /// Ignored after close().
    void add(std::function<void()> work, std::string owner = {});
    /// Runs the entries that were there when it was called; what they add runs the next time.
    /// Called from the top-level event loop only.
    void run();
    bool isEmpty() const { return m_work.empty(); }
    void close(); ///< drops everything, for good

    AddOnCaller caller; ///< of each entry

private:
    struct Entry {
        std::function<void()> work;
        std::string owner;
    };

    IdleTimer* m_timer;
    std::deque<Entry> m_work;
    bool m_closed = false;
};

} // namespace corvane::host
