#include "host/movie/libav/Codecs.h"

namespace corvane::movie {

LibavOptions finestQuantization() {
    return {{"flags", "+qscale"}, {"global_quality", "236"}}; // 2 * FF_QP2LAMBDA
}

EncoderSettings h264() {
    EncoderSettings settings;
    settings.encoder = "libx264";
    // Without B frames, frames are stored in the order in which they are shown. So the first one
    // is at time zero without an edit list, which fragmented files cannot rely on.
    settings.options = {{"preset", "veryfast"}, {"crf", "18"}, {"profile", "high"}, {"bf", "0"}};
    settings.frames = {AV_PIX_FMT_YUV420P, ColorModel::Video};
    settings.largestSide = 16384;
    settings.largestRateTerm = 1'000'000;
    return settings;
}

EncoderSettings jpeg(bool optimalCodeWords) {
    EncoderSettings settings;
    settings.encoder = "mjpeg";
    settings.options = finestQuantization();
    settings.options.emplace_back("huffman", optimalCodeWords ? "optimal" : "default");
    settings.frames = {AV_PIX_FMT_YUV444P, ColorModel::Jpeg};
    settings.largestSide = 65500; // the limit of JPEG libraries; the format allows slightly more
    settings.largestRateTerm = 1'000'000;
    return settings;
}

} // namespace corvane::movie
