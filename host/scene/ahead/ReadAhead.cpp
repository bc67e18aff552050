#include "host/scene/ahead/ReadAhead.h"

#include <utility>

namespace corvane::scene {

ReadAhead::~ReadAhead() {
    {
        const std::lock_guard lock(m_mutex);
        m_mustEnd = true;
        m_changed.notify_all();
    }
    if (m_thread.joinable()) {
        m_thread.join();
    }
}

void ReadAhead::start(const void* owner, Steps steps) {
    const std::lock_guard lock(m_mutex);
    m_waiting.remove_if([owner](const Work& work) { return work.owner == owner; });
    if (!steps.empty()) {
        m_waiting.push_back({owner, std::move(steps)});
    }
    if (!m_thread.joinable()) {
        m_thread = std::thread(&ReadAhead::work, this);
    }
    m_changed.notify_all();
}

void ReadAhead::wait() {
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return m_waiting.empty() && !m_isRunning; });
}

void ReadAhead::work() {
    while (const std::function<void()> step = nextStep()) {
        try {
            const std::lock_guard lock(m_meshes);
            step();
        } catch (...) {
            giveUp(m_owner);
        }
    }
}

std::function<void()> ReadAhead::nextStep() {
    std::unique_lock lock(m_mutex);
    m_isRunning = false;
    m_changed.notify_all();
    m_changed.wait(lock, [this] { return m_mustEnd || !m_waiting.empty(); });
    if (m_mustEnd) {
        return {};
    }
    Work& work = m_waiting.front();
    m_owner = work.owner;
    m_isRunning = true;
    std::function<void()> step = std::move(work.steps[work.next]);
    if (++work.next == work.steps.size()) {
        m_waiting.pop_front();
    }
    return step;
}

void ReadAhead::giveUp(const void* owner) {
    const std::lock_guard lock(m_mutex);
    m_waiting.remove_if([owner](const Work& work) { return work.owner == owner; });
}

} // namespace corvane::scene
