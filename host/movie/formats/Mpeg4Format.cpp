#include "host/movie/formats/Mpeg4Format.h"

#include "host/movie/formats/Mpeg4Movie.h"
#include "host/movie/libav/Codecs.h"

namespace corvane::movie {

namespace {

/// For a libav built without x264. Files are larger at the same quality, but every libav has it.
EncoderSettings mpeg4Part2() {
    EncoderSettings settings;
    settings.encoder = "mpeg4";
    settings.options = finestQuantization();
    settings.frames = {AV_PIX_FMT_YUV420P, ColorModel::Video};
    settings.largestSide = 8190;      // 13 bits, even
    settings.largestRateTerm = 65535; // 16 bits
    return settings;
}

} // namespace

std::unique_ptr<PictureSink> Mpeg4Format::open(const host::MovieRequest& request) const {
    return std::make_unique<Mpeg4Movie>(request, settings(request));
}

VideoSettings Mpeg4Format::settings(const host::MovieRequest&) const {
    VideoSettings settings;
    settings.container = "mp4";
    settings.containerOptions = {{"movflags", "+frag_keyframe+empty_moov+default_base_moof"}};
    settings.encoders = {h264(), mpeg4Part2()};
    return settings;
}

} // namespace corvane::movie
