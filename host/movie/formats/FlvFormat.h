// Flash video.
#pragma once

#include "host/movie/formats/VideoFormat.h"

namespace corvane::movie {

/// H.264 in an FLV file, which players support since Flash Player 9. Where libav was built without
/// x264: Sorenson Spark, which every FLV player supports. Timestamps are whole milliseconds; the
/// exact frame rate is in the metadata. A truncated file can be played up to where it ends.
class FlvFormat : public VideoFormat {
public:
    VideoSettings settings(const host::MovieRequest& request) const override;
};

} // namespace corvane::movie
