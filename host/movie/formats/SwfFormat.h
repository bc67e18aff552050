// Flash movies.
#pragma once

#include "host/movie/formats/FileFormat.h"

namespace corvane::movie {

/// SWF files of bitmaps that any SWF reader knows, after the SWF file format specification: libav
/// writes SWF files with lossy video alone. The image types are lossless bitmaps of 24 bits,
/// JPEG pictures with the colour of every pixel, and bitmaps with palettes of 256 colours. A file
/// that was cut off holds all its pictures, but does not say how many.
class SwfFormat : public FileFormat {
public:
    std::unique_ptr<PictureSink> open(const host::MovieRequest& request) const override;
};

} // namespace corvane::movie
