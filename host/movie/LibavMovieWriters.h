// Opens movie files for writing.
#pragma once

#include "host/core/ports/Ports.h"

#include <functional>
#include <memory>
#include <string>

namespace corvane::movie {

/// Writes every movie format: with libav, or with code of our own where libav lacks a writer. Each
/// movie compresses its pictures on its own thread. An MPEG-4 file is fragmented while it is being
/// written; finish() rewrites it as a plain one, by way of a temporary file beside it.
class LibavMovieWriters : public host::MovieWriters {
public:
    using Log = std::function<void(const std::string&)>;

    /// Logs to standard error, one line per note.
    LibavMovieWriters();
    /// The log is given one sentence whenever a movie differs from what was asked for, for example
    /// because it was padded to an even size.
    explicit LibavMovieWriters(Log log);

    std::unique_ptr<host::MovieWriter> open(const host::MovieRequest& request) override;

private:
    Log m_log;
};

} // namespace corvane::movie
