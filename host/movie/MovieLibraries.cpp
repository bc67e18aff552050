#include "host/movie/MovieLibraries.h"

#include "host/movie/libav/Codecs.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libswscale/swscale.h>
}

namespace corvane::movie {

namespace {

std::string versioned(const char* name, unsigned version) {
    return std::string(name) + ' ' + std::to_string(AV_VERSION_MAJOR(version)) + '.' +
           std::to_string(AV_VERSION_MINOR(version)) + '.' +
           std::to_string(AV_VERSION_MICRO(version));
}

} // namespace

std::string movieLibraries() {
    const std::string encoder = h264().encoder;
    const bool hasEncoder = avcodec_find_encoder_by_name(encoder.c_str()) != nullptr;
    return versioned("libavcodec", avcodec_version()) + ", " +
           versioned("libavformat", avformat_version()) + ", " +
           versioned("libswscale", swscale_version()) + ", " + (hasEncoder ? "with " : "without ") +
           encoder;
}

} // namespace corvane::movie
