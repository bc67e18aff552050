// Windows Media movies.
#pragma once

#include "host/movie/formats/VideoFormat.h"

namespace corvane::movie {

/// Windows Media Video 8 in an ASF file. Timestamps are whole milliseconds. A truncated file can be
/// played up to where it ends.
class WmvFormat : public VideoFormat {
public:
    VideoSettings settings(const host::MovieRequest& request) const override;
};

} // namespace corvane::movie
