// What makes one kind of movie that libav writes different from another.
#pragma once

#include "host/movie/libav/ColorModel.h"
#include "host/movie/libav/LibavOptions.h"

extern "C" {
#include <libavutil/pixfmt.h>
}

#include <string>
#include <vector>

namespace corvane::movie {

/// What an encoder takes.
struct FrameKind {
    AVPixelFormat pixelFormat = AV_PIX_FMT_NONE;
    ColorModel colors = ColorModel::Video;
    bool bottomUp = false; ///< the lowest row first
};

/// One way to compress the pictures of a movie.
struct EncoderSettings {
    std::string encoder; ///< libav's name
    LibavOptions options;
    FrameKind frames;
    int largestSide = 0;     ///< pixels; what encoder and container take at most in a direction
    int largestRateTerm = 0; ///< of the fraction that the speed is stored as
};

struct VideoSettings {
    std::string container;                 ///< libav's name
    LibavOptions containerOptions;         ///< while it is written
    std::vector<EncoderSettings> encoders; ///< the first one that this libav has is used
};

} // namespace corvane::movie
