#include "host/movie/formats/AviFormat.h"

#include "host/movie/libav/Codecs.h"

#include <utility>

namespace corvane::movie {

namespace {

constexpr int largestSideInAvi = 32767; // the frame rectangle has signed 16-bit fields

VideoSettings aviWith(EncoderSettings encoder) {
    encoder.largestSide = largestSideInAvi;
    encoder.largestRateTerm = 1'000'000;
    VideoSettings settings;
    settings.container = "avi";
    settings.encoders = {std::move(encoder)};
    return settings;
}

VideoSettings linePreserving() {
    EncoderSettings encoder;
    encoder.encoder = "ffv1";
    encoder.options = {{"level", "3"}, {"slicecrc", "1"}, {"g", "1"}};
    encoder.frames = {AV_PIX_FMT_BGR0, ColorModel::Rgb};
    return aviWith(std::move(encoder));
}

VideoSettings uncompressed() {
    EncoderSettings encoder;
    encoder.encoder = "rawvideo";
    encoder.frames = {AV_PIX_FMT_BGR24, ColorModel::Rgb, true};
    VideoSettings settings = aviWith(std::move(encoder));
    settings.containerOptions = {{"flipped_raw_rgb", "1"}};
    return settings;
}

} // namespace

VideoSettings AviFormat::settings(const host::MovieRequest& request) const {
    switch (request.aviCompression) {
    case AVICompression_LosslessUncompressed:
        return uncompressed();
    case AVICompression_ColorPreserving:
        return aviWith(jpeg(false));
    case AVICompression_LinePreserving:
        break;
    }
    return linePreserving();
}

} // namespace corvane::movie
