// Work that waits until the event loop has nothing else to do.
#pragma once

#include "host/core/addons/AddOnCaller.h"

#include <deque>
#include <functional>
#include <string>
#include <utility>

namespace corvane::host {

class IdleTimer;

class IdleQueue {
public:
    /// timer may be null: there is no event loop. caller runs each entry.
    explicit IdleQueue(IdleTimer* timer, AddOnCaller caller = callPlainly)
        : m_timer(timer), m_caller(std::move(caller)) {}

    /// Each entry runs once, in order; duplicates are kept. owner names the add-on for the trace.
    /// Ignored after close().
    void add(std::function<void()> work, std::string owner = {});
    /// Runs the entries that were there when it was called; what they add runs the next time.
    /// Called from the top-level event loop only.
    void run();
    bool isEmpty() const { return m_work.empty(); }
    void close(); ///< drops everything, for good

private:
    struct Entry {
        std::function<void()> work;
        std::string owner;
    };

    IdleTimer* m_timer;
    AddOnCaller m_caller;
    std::deque<Entry> m_work;
    bool m_closed = false;
};

} // namespace corvane::host
