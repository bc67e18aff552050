// Encoder settings that several formats share.
#pragma once

#include "host/movie/libav/VideoSettings.h"

namespace corvane::movie {

/// The finest quantization, which keeps the edges of thin lines and small text clean.
LibavOptions finestQuantization();

/// H.264 with the options that nearly every player supports.
EncoderSettings h264();

/// Independent JPEG pictures without chroma subsampling. Optimal Huffman tables for each picture
/// make files smaller and take longer; the decoded pictures are the same.
EncoderSettings jpeg(bool optimalCodeWords);

} // namespace corvane::movie
