// Movies that are counted instead of encoded.
#pragma once

#include "host/core/ports/Ports.h"

#include <cstddef>
#include <deque>
#include <memory>

namespace corvane::test {

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

    /// The next movie cannot be opened: HostError.
    void failOpen() { m_script.failOpen = true; }
    /// The k-th picture from now (1 = the next one) cannot be written: HostError.
    void failAt(std::size_t k) { m_script.failAt = k; }
    /// The next movie cannot be finished: HostError.
    void failFinish() { m_script.failFinish = true; }

private:
    struct Script {
        bool failOpen = false;
        std::size_t failAt = 0; ///< 0: never
        bool failFinish = false;
    };
    class Writer;

    std::deque<MemoryMovie> m_movies; ///< stay where they are, for their writers
    Script m_script;
};

} // namespace corvane::test
