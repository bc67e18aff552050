// Flash movies.
#pragma once

#include "host/movie/formats/FileFormat.h"

namespace corvane::movie {

/// SWF files made of bitmaps, which every SWF reader supports; libav itself writes only lossy video
/// into SWF files. The image types are lossless 24-bit bitmaps, JPEG pictures without chroma
/// subsampling, and bitmaps with palettes of 256 colours. A truncated file keeps its complete
/// pictures, but its header does not count them.
class SwfFormat : public FileFormat {
public:
    std::unique_ptr<PictureSink> open(const host::MovieRequest& request) const override;
};

} // namespace corvane::movie
