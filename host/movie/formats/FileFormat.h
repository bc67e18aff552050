// A format of movie files, and how a movie of it is started.
#pragma once

#include "host/core/ports/Ports.h"
#include "host/movie/libav/PictureSink.h"

#include <memory>

namespace corvane::movie {

class FileFormat {
public:
    virtual ~FileFormat() = default;
    /// Starts a movie with the options that the request has for this format. Throws HostError when
    /// such a movie cannot be written.
    virtual std::unique_ptr<PictureSink> open(const host::MovieRequest& request) const = 0;
};

} // namespace corvane::movie
