// Writes pictures on a thread of its own, so that the next one can be drawn meanwhile.
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

/// Keeps the order of the pictures. Its own functions are for one thread at a time.
class EncoderThread : public host::MovieWriter {
public:
    /// mostWaiting: pictures (at least 1) that wait beside the one being written; add() blocks
    /// beyond them.
    EncoderThread(std::unique_ptr<PictureSink> sink, std::size_t mostWaiting);
    /// Without finish() before it: drops the waiting pictures.
    ~EncoderThread() override;
    EncoderThread(const EncoderThread&) = delete;
    EncoderThread& operator=(const EncoderThread&) = delete;

    void add(host::Picture picture) override;
    void finish() override;

    /// Pictures that wait just now; for any thread.
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
    std::string m_failure; ///< empty while all went well
    bool m_hasEnded = false;

    std::thread m_thread; ///< last: it uses all of the above
};

/// How many pictures of a size may wait: a few, and one where they are huge.
std::size_t mostWaitingPictures(int width, int height);

} // namespace corvane::movie
