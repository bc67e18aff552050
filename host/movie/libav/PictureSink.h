// A movie that takes the pictures of the encoder thread.
#pragma once

#include "host/core/ports/Picture.h"

#include <string>

namespace corvane::movie {

/// Not thread-safe. Destroying it before finish() closes the file but does not remove it.
class PictureSink {
public:
    virtual ~PictureSink() = default;
    /// A sentence about how the movie differs from its pictures, or empty.
    virtual std::string note() const { return {}; }
    /// Throws when the picture cannot be written.
    virtual void write(const host::Picture& picture) = 0;
    /// Completes the file and closes it. Throws when that fails.
    virtual void finish() = 0;
};

} // namespace corvane::movie
