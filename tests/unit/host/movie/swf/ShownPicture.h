// A picture with a palette as it shows.
#pragma once

#include "host/movie/swf/IndexedPicture.h"
#include "tests/unit/host/movie/TestMovie.h"

#include <algorithm>
#include <cstddef>

namespace corvane::movie_test {

inline host::Picture shown(const movie::IndexedPicture& indexed, int width, int height) {
    host::Picture picture = uniformPicture(width, height, {});
    for (std::size_t pixel = 0; pixel < indexed.indices.size(); ++pixel) {
        const movie::PaletteColor& color = indexed.palette.at(indexed.indices[pixel]);
        std::copy(color.begin(), color.end(), picture.rgba.data() + 4 * pixel);
    }
    return picture;
}

} // namespace corvane::movie_test
