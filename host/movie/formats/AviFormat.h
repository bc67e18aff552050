// AVI movies.
#pragma once

#include "host/movie/formats/VideoFormat.h"

namespace corvane::movie {

/// What the compressions of the set-up are:
/// - Line preserving: FFV1 in RGB. It is lossless, so lines of one pixel and their colours come
///   back exactly. Among the lossless codecs it is the one with a published standard (RFC 9043),
///   it is read by all players built on libav, its run coding keeps plain backgrounds small, and
///   its checksums reveal damage. Every picture stands alone: one can step back and forth.
/// - Colour preserving: Motion JPEG of the finest quality with the colour of every pixel.
/// - Lossless uncompressed: bitmaps of 24 bits a pixel from the lowest row up, the layout that
///   every reader of AVI knows.
/// An AVI file that was cut off plays up to its end; only its index is missing.
class AviFormat : public VideoFormat {
public:
    VideoSettings settings(const host::MovieRequest& request) const override;
};

} // namespace corvane::movie
