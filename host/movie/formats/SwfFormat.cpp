#include "host/movie/formats/SwfFormat.h"

#include "host/movie/swf/SwfMovie.h"

namespace corvane::movie {

std::unique_ptr<PictureSink> SwfFormat::open(const host::MovieRequest& request) const {
    return std::make_unique<SwfMovie>(request);
}

} // namespace corvane::movie
