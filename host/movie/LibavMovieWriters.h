// Opens movie files for writing, through libav*.
#pragma once

#include "host/core/Ports.h"

#include <memory>

namespace corvane::movie {

/// Writes MPEG-4 movies: H.264 in MP4. While such a movie is written its file is fragmented, so
/// that what a killed process leaves behind plays up to its last second; finish() turns it into a
/// plain one, for which a second file stands beside it for a moment. Pictures are compressed on a
/// thread of the writer's own.
class LibavMovieWriters : public host::MovieWriters {
public:
    std::unique_ptr<host::MovieWriter> open(const host::MovieRequest& request) override;
};

} // namespace corvane::movie
