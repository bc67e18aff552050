#include "host/movie/libav/ColorModel.h"

namespace corvane::movie {

AVColorSpace matrixOf(ColorModel model, int height) {
    // Where the file does not name the matrix, players assume BT.601 for pictures up to the height
    // of PAL video, and BT.709 for higher ones.
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
