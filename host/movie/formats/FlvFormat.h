// Flash video.
#pragma once

#include "host/movie/formats/VideoFormat.h"

namespace corvane::movie {

/// H.264 in an FLV file, which players of FLV have read since the ninth Flash player, and Sorenson
/// Spark, which all of them read, where libav has no x264. Times are whole milliseconds; the speed
/// itself stands in the file's description. A file that was cut off plays up to its end.
class FlvFormat : public VideoFormat {
public:
    VideoSettings settings(const host::MovieRequest& request) const override;
};

} // namespace corvane::movie
