// What makes one kind of movie file different from another.
#pragma once

#include "host/movie/LibavOptions.h"

extern "C" {
#include <libavutil/pixfmt.h>
}

#include <string>
#include <vector>

namespace corvane::movie {

/// One way to compress the pictures of a format.
struct EncoderSettings {
    std::string encoder; ///< libav's name
    LibavOptions options;
    int largestSide = 0;     ///< pixels; what the encoder takes at most as width or height
    int largestRateTerm = 0; ///< of the fraction that the speed is stored as
};

struct MovieFormat {
    std::string container;                 ///< libav's name
    LibavOptions containerOptions;         ///< while it is written
    std::vector<EncoderSettings> encoders; ///< the first one that this libav has is used
    AVPixelFormat pixelFormat = AV_PIX_FMT_NONE;
};

} // namespace corvane::movie
