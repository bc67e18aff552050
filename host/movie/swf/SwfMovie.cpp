#include "host/movie/swf/SwfMovie.h"

#include "host/movie/libav/PictureCheck.h"
#include "host/movie/libav/SizeCheck.h"

#include <cmath>
#include <string>

namespace corvane::movie {

namespace {

/// Sizes of bitmaps are 16-bit numbers, and JPEG libraries support no larger pictures than this.
constexpr int largestSide = 65500;

/// The frame rate of SWF files, in steps of 1/256.
unsigned rateOf(const host::MovieRequest& request, const LibavCheck& check) {
    const double rate = std::round(request.framesPerSecond * 256.0);
    if (rate < 1.0) {
        check.fail("its speed would be " + std::to_string(request.framesPerSecond) +
                   " frames per second; Flash movies take 1/256 (0.0039) and more");
    }
    return static_cast<unsigned>(rate);
}

} // namespace

SwfMovie::SwfMovie(const host::MovieRequest& request)
    : m_check(checkedSize(request, largestSide, LibavCheck(request.path))),
      m_width(request.width),
      m_height(request.height),
      m_images(swfImages(request, m_check)),
      m_file(request.width, request.height, rateOf(request, m_check), m_check),
      m_store([this](const SwfBitmap& bitmap) { m_file.add(bitmap); }) {}

void SwfMovie::write(const host::Picture& picture) {
    checkPicture(picture, m_width, m_height, m_check);
    m_images->encode(picture, m_store);
}

void SwfMovie::finish() {
    m_images->drain(m_store);
    if (m_file.frames() == 0) {
        m_check.fail("it has no pictures");
    }
    m_file.finish();
}

} // namespace corvane::movie
