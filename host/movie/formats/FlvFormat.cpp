#include "host/movie/formats/FlvFormat.h"

#include "host/movie/libav/Codecs.h"

namespace corvane::movie {

namespace {

EncoderSettings sorensonSpark() {
    EncoderSettings settings;
    settings.encoder = "flv";
    settings.options = finestQuantization();
    settings.frames = {AV_PIX_FMT_YUV420P, ColorModel::UnlabeledVideo};
    settings.largestSide = 65535; // 16 bits
    settings.largestRateTerm = 1'000'000;
    return settings;
}

} // namespace

VideoSettings FlvFormat::settings(const host::MovieRequest&) const {
    VideoSettings settings;
    settings.container = "flv";
    settings.encoders = {h264(), sorensonSpark()};
    return settings;
}

} // namespace corvane::movie
