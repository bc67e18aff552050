// MPEG-4 movies: H.264 in an MP4 file.
#pragma once

#include "host/movie/formats/VideoFormat.h"

namespace corvane::movie {

/// The file is fragmented while it is being written, so it can be played up to its last fragment
/// at any time.
class Mpeg4Format : public VideoFormat {
public:
    std::unique_ptr<PictureSink> open(const host::MovieRequest& request) const override;
    VideoSettings settings(const host::MovieRequest& request) const override;
};

} // namespace corvane::movie
