#include "host/movie/formats/VideoFormat.h"

#include "host/movie/libav/MovieFile.h"

namespace corvane::movie {

std::unique_ptr<PictureSink> VideoFormat::open(const host::MovieRequest& request) const {
    return std::make_unique<MovieFile>(request, settings(request));
}

} // namespace corvane::movie
