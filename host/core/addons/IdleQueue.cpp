// Keeps work for idle time, and does it.
#include "host/core/addons/IdleQueue.h"

#include "host/core/ports/Ports.h"

#include <utility>

namespace corvane::host {

void IdleQueue::add(std::function<void()> work, std::string owner) {
    if (m_closed) {
        return;
    }
    m_work.push_back({std::move(work), std::move(owner)});
    if (m_timer != nullptr) {
        m_timer->requestIdle();
    }
}

void IdleQueue::run() {
    // An entry may add entries, close the queue, or run a nested event loop that empties it.
    for (std::size_t left = m_work.size(); left > 0 && !m_work.empty(); --left) {
        const Entry entry = std::move(m_work.front());
        m_work.pop_front();
        m_caller(ofOwner("idle work", entry.owner), entry.work);
    }
}

void IdleQueue::close() {
    m_closed = true;
    m_work.clear();
}

} // namespace corvane::host
