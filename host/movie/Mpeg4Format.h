// MPEG-4 movies: H.264 in an MP4 file.
#pragma once

#include "host/movie/MovieFormat.h"

namespace corvane::movie {

/// The file is fragmented: what is on disk can be played up to its last fragment at any time.
MovieFormat mpeg4Format();

} // namespace corvane::movie
