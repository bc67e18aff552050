// Rejects sizes that a movie cannot have.
#pragma once

#include "host/core/ports/Ports.h"
#include "host/movie/libav/LibavCheck.h"

namespace corvane::movie {

/// Throws HostError when the requested pictures are empty, are larger than largestSide (pixels) in
/// a direction, or have more pixels than libav supports. Returns the check.
const LibavCheck& checkedSize(const host::MovieRequest& request, int largestSide,
                              const LibavCheck& check);

} // namespace corvane::movie
