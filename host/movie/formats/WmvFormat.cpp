#include "host/movie/formats/WmvFormat.h"

#include "host/movie/libav/Codecs.h"

#include <utility>

namespace corvane::movie {

VideoSettings WmvFormat::settings(const host::MovieRequest&) const {
    EncoderSettings encoder;
    encoder.encoder = "wmv2";
    encoder.options = finestQuantization();
    encoder.frames = {AV_PIX_FMT_YUV420P, ColorModel::UnlabeledVideo};
    encoder.largestSide = 32766;
    encoder.largestRateTerm = 1'000'000;
    VideoSettings settings;
    settings.container = "asf";
    settings.encoders = {std::move(encoder)};
    return settings;
}

} // namespace corvane::movie
