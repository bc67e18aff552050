// Sizes that a movie cannot have.
#pragma once

#include "host/core/ports/Ports.h"
#include "host/movie/libav/LibavCheck.h"

namespace corvane::movie {

/// Throws HostError when the request's pictures are empty, have a side above the largest one
/// (pixels), or have more pixels than libav handles. Returns the check.
const LibavCheck& checkedSize(const host::MovieRequest& request, int largestSide,
                              const LibavCheck& check);

} // namespace corvane::movie
