// Raster metafiles.
#pragma once

#include "host/movie/formats/VideoFormat.h"

namespace corvane::movie {

/// A sequence of binary PPM pictures: lossless, and read by common image tools and players. The
/// file does not store the frame rate. A truncated file lacks only its last picture.
/// docs/raster-metafile.md describes the layout.
class RasterMetafileFormat : public VideoFormat {
public:
    VideoSettings settings(const host::MovieRequest& request) const override;
};

} // namespace corvane::movie
