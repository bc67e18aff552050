// Where the encoder thread's pictures go.
#pragma once

#include "host/core/ports/Picture.h"

#include <string>

namespace corvane::movie {

/// Used by one thread at a time. Destroying it before finish() closes the file and leaves it.
class PictureSink {
public:
    virtual ~PictureSink() = default;
    /// A sentence about what differs between the pictures and the movie; empty for nothing.
    virtual std::string note() const { return {}; }
    /// Throws when the picture cannot be written.
    virtual void write(const host::Picture& picture) = 0;
    /// Completes the file and closes it. Throws when that fails.
    virtual void finish() = 0;
};

} // namespace corvane::movie
