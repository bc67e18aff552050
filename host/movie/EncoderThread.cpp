#include "host/movie/EncoderThread.h"

#include "host/core/base/HostError.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace corvane::movie {

std::size_t mostWaitingPictures(int width, int height) {
    constexpr std::size_t memory = std::size_t{256} << 20U;
    const std::size_t picture =
        4U * static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    return std::clamp<std::size_t>(memory / picture, 1, 4);
}

EncoderThread::EncoderThread(std::unique_ptr<PictureSink> sink, std::size_t mostWaiting)
    : m_sink(std::move(sink)), m_mostWaiting(mostWaiting), m_thread([this] { run(); }) {}

EncoderThread::~EncoderThread() {
    {
        const std::lock_guard lock(m_mutex);
        m_waiting.clear();
    }
    join();
}

void EncoderThread::add(host::Picture picture) {
    std::unique_lock lock(m_mutex);
    if (m_hasEnded) {
        throw std::logic_error("a picture was added to a finished movie");
    }
    m_queueChanged.wait(lock, [this] { return m_waiting.size() < m_mostWaiting; });
    throwFailure();
    m_waiting.push_back(std::move(picture));
    m_queueChanged.notify_all();
}

void EncoderThread::finish() {
    join();
    throwFailure();
    m_sink->finish();
}

std::size_t EncoderThread::waiting() const {
    const std::lock_guard lock(m_mutex);
    return m_waiting.size();
}

void EncoderThread::join() {
    {
        const std::lock_guard lock(m_mutex);
        m_hasEnded = true;
        m_queueChanged.notify_all();
    }
    if (m_thread.joinable()) {
        m_thread.join();
    }
}

void EncoderThread::throwFailure() const {
    if (!m_failure.empty()) {
        throw host::HostError(m_failure);
    }
}

void EncoderThread::run() {
    try {
        host::Picture picture;
        while (takeNext(picture)) {
            m_sink->write(picture);
        }
    } catch (const std::exception& error) {
        keepFailure(host::messageOf(error));
    }
}

bool EncoderThread::takeNext(host::Picture& picture) {
    std::unique_lock lock(m_mutex);
    m_queueChanged.wait(lock, [this] { return m_hasEnded || !m_waiting.empty(); });
    if (m_waiting.empty()) {
        return false;
    }
    picture = std::move(m_waiting.front());
    m_waiting.pop_front();
    m_queueChanged.notify_all();
    return true;
}

void EncoderThread::keepFailure(const std::string& reason) {
    const std::lock_guard lock(m_mutex);
    m_failure = reason;
    m_waiting.clear(); // wakes an add() that waits, which then throws
    m_queueChanged.notify_all();
}

} // namespace corvane::movie
