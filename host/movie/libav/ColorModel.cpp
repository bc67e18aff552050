// How the numbers in a movie stand for colours.
#include "host/movie/libav/ColorModel.h"

namespace corvane::movie {

AVColorSpace matrixOf(ColorModel model, int height) {
    // Where a file does not say it, players take pictures up to the height of a PAL screen for
    // BT.601, and higher ones for BT.709.
    constexpr int mostLinesOfSmallVideo = 576;
    switch (model) {
    case ColorModel::Video:
        return AVCOL_SPC_BT709;
    case ColorModel::UnlabeledVideo:
        return height <= mostLinesOfSmallVideo ? AVCOL_SPC_BT470BG : AVCOL_SPC_BT709;
    case ColorModel::Jpeg:
        return AVCOL_SPC_BT470BG;
    case ColorModel::Rgb:
        break;
    }
    return AVCOL_SPC_RGB;
}

AVColorRange rangeOf(ColorModel model) {
    return model == ColorModel::Jpeg || model == ColorModel::Rgb ? AVCOL_RANGE_JPEG
                                                                 : AVCOL_RANGE_MPEG;
}

} // namespace corvane::movie
