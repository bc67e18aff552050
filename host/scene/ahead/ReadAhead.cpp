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
    dropWaiting(owner);
    if (steps.empty()) {
        return;
    }
    m_waiting.push_back(std::make_shared<Work>(Work{
        owner, {std::make_move_iterator(steps.begin()), std::make_move_iterator(steps.end())}}));
    if (!m_thread.joinable()) {
        m_thread = std::thread(&ReadAhead::work, this);
    }
    m_changed.notify_all();
}

void ReadAhead::cancel(const void* owner) {
    std::unique_lock lock(m_mutex);
    dropWaiting(owner);
    m_changed.wait(lock, [this, owner] { return !m_running || m_running->owner != owner; });
}

void ReadAhead::wait() {
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return m_waiting.empty() && !m_running; });
}

ReadAhead::Pause::Pause(ReadAhead& ahead) : m_ahead(ahead) {
    std::unique_lock lock(m_ahead.m_mutex);
    ++m_ahead.m_pauses;
    m_ahead.m_changed.wait(lock, [this] { return !m_ahead.m_running; });
}

ReadAhead::Pause::~Pause() {
    const std::lock_guard lock(m_ahead.m_mutex);
    --m_ahead.m_pauses;
    m_ahead.m_changed.notify_all();
}

void ReadAhead::dropWaiting(const void* owner) {
    m_waiting.remove_if([owner](const auto& work) { return work->owner == owner; });
    m_changed.notify_all(); // whoever waits for everything waits no longer for this
}

void ReadAhead::work() {
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_changed.wait(lock, [this] { return m_mustEnd || (m_pauses == 0 && !m_waiting.empty()); });
        if (m_mustEnd) {
            return;
        }
        runStep(lock);
    }
}

void ReadAhead::runStep(std::unique_lock<std::mutex>& lock) {
    m_running = m_waiting.front();
    std::function<void()> step = std::move(m_running->steps.front());
    m_running->steps.pop_front();
    if (m_running->steps.empty()) {
        m_waiting.pop_front();
    }
    lock.unlock();
    bool hasFailed = false;
    try {
        step();
    } catch (...) {
        hasFailed = true;
    }
    step = nullptr; // with the data that it holds, before anybody goes on
    lock.lock();
    if (hasFailed) {
        m_waiting.remove(m_running);
    }
    m_running.reset();
    m_changed.notify_all();
}

} // namespace corvane::scene
