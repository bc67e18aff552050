// Raster metafiles.
#pragma once

#include "host/movie/formats/VideoFormat.h"

namespace corvane::movie {

/// Binary PPM pictures one behind the other: lossless, and read by common image tools and players.
/// The file holds no speed. One that was cut off holds all pictures but the last. The layout is in
/// docs/raster-metafile.md.
class RasterMetafileFormat : public VideoFormat {
public:
    VideoSettings settings(const host::MovieRequest& request) const override;
};

} // namespace corvane::movie
