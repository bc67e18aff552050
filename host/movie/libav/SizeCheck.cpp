#include "host/movie/libav/SizeCheck.h"

#include "host/movie/libav/SizeText.h"

extern "C" {
#include <libavutil/imgutils.h>
}

#include <limits>
#include <string>

namespace corvane::movie {

namespace {

[[noreturn]] void fail(const host::MovieRequest& request, const std::string& advice,
                       const LibavCheck& check) {
    check.fail("its pictures would have " + sizeText(request.width, request.height) +
               " pixels; choose an image width that leads to " + advice);
}

} // namespace

const LibavCheck& checkedSize(const host::MovieRequest& request, int largestSide,
                              const LibavCheck& check) {
    const auto fits = [&](int side) { return side >= 1 && side <= largestSide; };
    if (!fits(request.width) || !fits(request.height)) {
        const bool isLimited = largestSide < std::numeric_limits<int>::max();
        fail(request,
             (isLimited ? "1 to " + std::to_string(largestSide) : std::string("at least 1")) +
                 " pixels in both directions",
             check);
    }
    if (av_image_check_size(static_cast<unsigned>(request.width),
                            static_cast<unsigned>(request.height), 0, nullptr) < 0) {
        fail(request, "at most about 260 million pixels altogether", check);
    }
    return check;
}

} // namespace corvane::movie
