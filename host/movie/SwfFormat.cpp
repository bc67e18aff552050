// Flash movies.
#include "host/movie/SwfFormat.h"

#include "host/movie/SwfMovie.h"

namespace corvane::movie {

std::unique_ptr<PictureSink> SwfFormat::open(const host::MovieRequest& request) const {
    return std::make_unique<SwfMovie>(request);
}

} // namespace corvane::movie
