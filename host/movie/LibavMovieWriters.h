// Opens movie files for writing.
#pragma once

#include "host/core/ports/Ports.h"

#include <functional>
#include <memory>
#include <string>

namespace corvane::movie {

/// Writes all formats of movies, with libav and, where that has no writer, its own. Pictures are
/// compressed on a thread of the movie's own. While an MPEG-4 movie is written its file is
/// fragmented; finish() turns it into a plain one, for which a second file stands beside it for a
/// moment.
class LibavMovieWriters : public host::MovieWriters {
public:
    using Log = std::function<void(const std::string&)>;

    /// Notes on standard error, one line each.
    LibavMovieWriters();
    /// The log takes one sentence when a movie is not quite what was asked for, such as padded to
    /// an even size.
    explicit LibavMovieWriters(Log log);

    std::unique_ptr<host::MovieWriter> open(const host::MovieRequest& request) override;

private:
    Log m_log;
};

} // namespace corvane::movie
