// A picture of one gray.
#pragma once

#include "host/core/ports/Picture.h"

#include <cstdint>

namespace corvane::test {

inline host::Picture grayPicture(int width, int height, std::uint8_t gray) {
    host::Picture picture{width, height, {}};
    for (int i = 0; i < width * height; ++i) {
        picture.rgba.insert(picture.rgba.end(), {gray, gray, gray, 255});
    }
    return picture;
}

} // namespace corvane::test
