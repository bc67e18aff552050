// AVI movies.
#pragma once

#include "host/movie/formats/VideoFormat.h"

namespace corvane::movie {

/// How the compressions of the export set-up are implemented:
/// - Line preserving: FFV1 in RGB. It is lossless, so lines one pixel wide keep their exact
///   colours. Unlike other lossless codecs it has a published standard (RFC 9043); every player
///   built on libav reads it, its run-length coding keeps plain backgrounds small, and its
///   checksums reveal damage. Every frame is a key frame, so players can step back and forth.
/// - Colour preserving: Motion JPEG at the highest quality, without chroma subsampling.
/// - Lossless uncompressed: bottom-up bitmaps with 24 bits per pixel, the layout that every AVI
///   reader supports.
/// A truncated AVI file can be played up to where it ends; only the index is missing.
class AviFormat : public VideoFormat {
public:
    VideoSettings settings(const host::MovieRequest& request) const override;
};

} // namespace corvane::movie
