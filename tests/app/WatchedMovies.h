// Movies on their way to the disk: looked at, or made to fail.
#pragma once

#include "host/core/ports/Ports.h"

#include <functional>
#include <memory>

namespace corvane::test {

/// Passes everything on to other writers.
class WatchedMovies : public host::MovieWriters {
public:
    explicit WatchedMovies(host::MovieWriters& writers) : m_writers(writers) {}

    std::unique_ptr<host::MovieWriter> open(const host::MovieRequest& request) override;

    /// Called with the number of each picture, from 0, before it is written. What it throws is the
    /// failure of the writer.
    std::function<void(long)> onPicture;
    /// From this picture on the user wants to stop; negative: never.
    long stopAt = -1;
    bool wantsStop() const { return stopAt >= 0 && m_pictures > stopAt; }

private:
    class Writer;

    host::MovieWriters& m_writers;
    long m_pictures = 0;
};

} // namespace corvane::test
