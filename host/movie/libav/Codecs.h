// Ways to compress pictures that several formats share.
#pragma once

#include "host/movie/libav/VideoSettings.h"

namespace corvane::movie {

/// The finest step of quantization. Thin lines and small text have clean edges.
LibavOptions finestQuantization();

/// H.264 as nearly every player takes it.
EncoderSettings h264();

/// Pictures of their own, with the colour of every pixel. The optimal code words for each picture
/// make it smaller and take longer; the pictures are the same.
EncoderSettings jpeg(bool optimalCodeWords);

} // namespace corvane::movie
