#include "host/movie/formats/RasterMetafileFormat.h"

#include <limits>

namespace corvane::movie {

VideoSettings RasterMetafileFormat::settings(const host::MovieRequest&) const {
    EncoderSettings encoder;
    encoder.encoder = "ppm";
    encoder.frames = {AV_PIX_FMT_RGB24, ColorModel::Rgb};
    encoder.largestSide = std::numeric_limits<int>::max(); // sizes are decimal text
    encoder.largestRateTerm = 1'000'000;                   // not stored in the file
    VideoSettings settings;
    settings.container = "image2pipe";
    settings.encoders = {std::move(encoder)};
    return settings;
}

} // namespace corvane::movie
