// How the values in a movie encode colours.
#pragma once

extern "C" {
#include <libavutil/pixfmt.h>
}

namespace corvane::movie {

enum class ColorModel {
    Video,          ///< BT.709 in limited range, labelled as such in the file
    UnlabeledVideo, ///< limited range; the file cannot name the matrix, so players choose it by
                    ///< size
    Jpeg,           ///< BT.601 in full range, as JPEG readers assume
    Rgb             ///< red, green and blue, not converted
};

/// height: of the pictures, in pixels.
AVColorSpace matrixOf(ColorModel model, int height);
AVColorRange rangeOf(ColorModel model);

} // namespace corvane::movie
