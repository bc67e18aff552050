// Windows Media movies.
#pragma once

#include "host/movie/formats/VideoFormat.h"

namespace corvane::movie {

/// Windows Media Video 8 in an ASF file. Times are whole milliseconds. A file that was cut off
/// plays up to its end.
class WmvFormat : public VideoFormat {
public:
    VideoSettings settings(const host::MovieRequest& request) const override;
};

} // namespace corvane::movie
