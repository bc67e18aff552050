// Movies that are counted instead of encoded.
#pragma once

#include "host/core/ports/Ports.h"

#include <cstddef>
#include <deque>
#include <exception>
#include <memory>
#include <string>

namespace corvane::memory {

struct MemoryMovie {
    host::MovieRequest request;
    std::size_t pictures = 0;
    bool finished = false;
    bool abandoned = false; ///< its writer went away without finishing it
};

/// Each movie leaves a small file at its path, since the exporter moves that file in place.
class MemoryMovies : public host::MovieWriters {
public:
    std::unique_ptr<host::MovieWriter> open(const host::MovieRequest& request) override;

    const std::deque<MemoryMovie>& movies() const { return m_movies; }

    /// The next movie cannot be opened: HostError with this message.
    void failOpen(std::string message = "The encoder could not be opened.");
    /// The k-th picture from now (1 = the next one) cannot be written: HostError.
    void failAt(std::size_t k);
    /// The same, with anything that can be thrown.
    void failAt(std::size_t k, std::exception_ptr failure);
    /// The next movie cannot be finished: HostError.
    void failFinish() { m_script.failFinish = true; }

private:
    struct Script {
        std::string failOpen;   ///< empty: it does not
        std::size_t failAt = 0; ///< 0: never
        std::exception_ptr pictureFailure;
        bool failFinish = false;
    };
    class Writer;

    std::deque<MemoryMovie> m_movies; ///< stay where they are, for their writers
    Script m_script;
};

} // namespace corvane::memory
