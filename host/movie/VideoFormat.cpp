// A movie format that libav writes from pictures to file.
#include "host/movie/VideoFormat.h"

#include "host/movie/MovieFile.h"

namespace corvane::movie {

std::unique_ptr<PictureSink> VideoFormat::open(const host::MovieRequest& request) const {
    return std::make_unique<MovieFile>(request, settings(request));
}

} // namespace corvane::movie
