// MPEG-4 movies: H.264 in an MP4 file.
#include "host/movie/Mpeg4Format.h"

namespace corvane::movie {

namespace {

EncoderSettings h264() {
    EncoderSettings settings;
    settings.encoder = "libx264";
    // Pictures without B pictures are stored in the order in which they are shown. So the first
    // one stands at time zero without an edit list, which fragmented files cannot rely on.
    settings.options = {{"preset", "veryfast"}, {"crf", "18"}, {"profile", "high"}, {"bf", "0"}};
    settings.largestSide = 16384;
    settings.largestRateTerm = 1'000'000;
    return settings;
}

/// Where libav was built without x264. Larger files for the same quality, but every libav has it.
EncoderSettings mpeg4Part2() {
    EncoderSettings settings;
    settings.encoder = "mpeg4";
    settings.options = {{"flags", "+qscale"}, {"global_quality", "236"}}; // 2 * FF_QP2LAMBDA
    settings.largestSide = 8190;                                          // 13 bits, even
    settings.largestRateTerm = 65535;                                     // 16 bits
    return settings;
}

} // namespace

MovieFormat mpeg4Format() {
    MovieFormat format;
    format.container = "mp4";
    format.containerOptions = {{"movflags", "+frag_keyframe+empty_moov+default_base_moof"}};
    format.encoders = {h264(), mpeg4Part2()};
    format.pixelFormat = AV_PIX_FMT_YUV420P;
    return format;
}

} // namespace corvane::movie
