// How the numbers in a movie stand for colours.
#pragma once

extern "C" {
#include <libavutil/pixfmt.h>
}

namespace corvane::movie {

enum class ColorModel {
    Video,          ///< BT.709 in limited range, and the file says so
    UnlabeledVideo, ///< limited range; the file cannot say which matrix, players go by the size
    Jpeg,           ///< BT.601 in full range, as all JPEG pictures are read
    Rgb             ///< red, green and blue as they are
};

/// The height is that of the pictures, in pixels.
AVColorSpace matrixOf(ColorModel model, int height);
AVColorRange rangeOf(ColorModel model);

} // namespace corvane::movie
