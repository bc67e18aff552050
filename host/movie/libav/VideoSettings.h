// The settings with which libav writes one kind of movie.
#pragma once

#include "host/movie/libav/ColorModel.h"
#include "host/movie/libav/LibavOptions.h"

extern "C" {
#include <libavutil/pixfmt.h>
}

#include <string>
#include <vector>

namespace corvane::movie {

/// The frames that an encoder expects.
struct FrameKind {
    AVPixelFormat pixelFormat = AV_PIX_FMT_NONE;
    ColorModel colors = ColorModel::Video;
    bool bottomUp = false; ///< the bottom row comes first
};

/// An encoder with its options and limits.
struct EncoderSettings {
    std::string encoder; ///< libav's name
    LibavOptions options;
    FrameKind frames;
    int largestSide = 0;     ///< pixels in one direction, the limit of encoder and container
    int largestRateTerm = 0; ///< in the fraction that stores the frame rate
};

struct VideoSettings {
    std::string container;         ///< libav's name
    LibavOptions containerOptions; ///< applied when the file is created
    std::vector<EncoderSettings>
        encoders; ///< in order of preference; the first available one is used
};

} // namespace corvane::movie
