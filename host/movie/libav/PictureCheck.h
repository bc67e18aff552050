// Pictures that do not belong into a movie.
#pragma once

#include "host/core/ports/Picture.h"
#include "host/movie/libav/LibavCheck.h"

namespace corvane::movie {

/// Throws HostError unless the picture has the size (pixels) of the movie, and all its bytes.
void checkPicture(const host::Picture& picture, int width, int height, const LibavCheck& check);

} // namespace corvane::movie
