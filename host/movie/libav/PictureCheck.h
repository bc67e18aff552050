// Rejects pictures that do not fit into a movie.
#pragma once

#include "host/core/ports/Picture.h"
#include "host/movie/libav/LibavCheck.h"

namespace corvane::movie {

/// Throws HostError unless the picture is complete and has the size (pixels) of the movie.
void checkPicture(const host::Picture& picture, int width, int height, const LibavCheck& check);

} // namespace corvane::movie
