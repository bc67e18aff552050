// Encodes pictures on a background thread, so that the next one can be drawn meanwhile.
#pragma once

#include "host/core/ports/Ports.h"
#include "host/movie/libav/PictureSink.h"

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

namespace corvane::movie {

/// Pictures are written in the order in which they are added. Only waiting() is thread-safe.
class EncoderThread : public host::MovieWriter {
public:
    /// mostWaiting: how many pictures (at least 1) may be queued besides the one being written;
    /// add() blocks while the queue is full.
    EncoderThread(std::unique_ptr<PictureSink> sink, std::size_t mostWaiting);
    /// Drops queued pictures unless finish() was called.
    ~EncoderThread() override;
    EncoderThread(const EncoderThread&) = delete;
    EncoderThread& operator=(const EncoderThread&) = delete;

    void add(host::Picture picture) override;
    void finish() override;

    /// The number of queued pictures. Thread-safe.
    std::size_t waiting() const;

private:
    void run();
    bool takeNext(host::Picture& picture);
    void keepFailure(const std::string& reason);
    void throwFailure() const;
    void join();

    const std::unique_ptr<PictureSink> m_sink;
    const std::size_t m_mostWaiting;

    mutable std::mutex m_mutex;
    std::condition_variable m_queueChanged;
    std::deque<host::Picture> m_waiting;
    std::string m_failure; ///< empty while nothing has failed
    bool m_hasEnded = false;

    std::thread m_thread; ///< declared last, since it uses all of the above
};

/// How many pictures of this size to queue: a few, or one if they are huge.
std::size_t mostWaitingPictures(int width, int height);

} // namespace corvane::movie
