#include "host/movie/libav/PictureCheck.h"

#include "host/movie/libav/SizeText.h"

namespace corvane::movie {

void checkPicture(const host::Picture& picture, int width, int height, const LibavCheck& check) {
    const std::size_t bytes =
        4U * static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    if (picture.width != width || picture.height != height || picture.rgba.size() != bytes) {
        check.fail("a picture of " + sizeText(picture.width, picture.height) +
                   " pixels came into a movie of " + sizeText(width, height) +
                   "; keep the size while a movie is written");
    }
}

} // namespace corvane::movie
