// Joins converter, encoder and container into a movie.
#include "host/movie/MovieFile.h"

#include "host/movie/FrameRate.h"

#include <memory>
#include <string>

namespace corvane::movie {

namespace {

struct CodecParametersDeleter {
    void operator()(AVCodecParameters* parameters) const { avcodec_parameters_free(&parameters); }
};

const LibavCheck& checkedSize(const host::MovieRequest& request, const EncoderSettings& settings,
                              const LibavCheck& check) {
    const auto fits = [&](int side) { return side >= 1 && side <= settings.largestSide; };
    if (!fits(request.width) || !fits(request.height))
        check.fail("its pictures would have " + std::to_string(request.width) + " x " +
                   std::to_string(request.height) +
                   " pixels; choose an image width that leads to " + "1 to " +
                   std::to_string(settings.largestSide) + " pixels in both directions");
    return check;
}

VideoShape videoShape(const PictureConverter& converter, const OutputContainer& container,
                      AVPixelFormat pixelFormat, AVRational rate) {
    VideoShape shape;
    shape.width = converter.frameWidth();
    shape.height = converter.frameHeight();
    shape.pixelFormat = pixelFormat;
    shape.rate = rate;
    shape.headerApart = container.keepsHeaderApart();
    return shape;
}

void begin(OutputContainer& container, const AVCodecContext& encoder, const LibavOptions& options,
           const LibavCheck& check) {
    const std::unique_ptr<AVCodecParameters, CodecParametersDeleter> codec(
        check.made(avcodec_parameters_alloc()));
    check(avcodec_parameters_from_context(codec.get(), &encoder), "describing the pictures");
    StreamShape shape;
    shape.codec = codec.get();
    shape.timeBase = encoder.time_base;
    shape.rate = encoder.framerate;
    container.begin(shape, options);
}

} // namespace

MovieFile::MovieFile(const host::MovieRequest& request, const MovieFormat& format)
    : MovieFile(request, format, availableEncoder(format, LibavCheck(request.path)),
                LibavCheck(request.path)) {}

MovieFile::MovieFile(const host::MovieRequest& request, const MovieFormat& format,
                     const EncoderSettings& settings, const LibavCheck& check)
    : m_check(checkedSize(request, settings, check)),
      m_converter(request.width, request.height, format.pixelFormat, check),
      m_container(format.container, check),
      m_encoder(settings,
                videoShape(m_converter, m_container, format.pixelFormat,
                           frameRate(request.framesPerSecond, settings.largestRateTerm)),
                check),
      m_store([this](AVPacket* packet) { m_container.write(packet); }) {
    begin(m_container, m_encoder.context(), format.containerOptions, check);
}

void MovieFile::write(const host::Picture& picture) {
    m_encoder.encode(m_converter.convert(picture), m_store);
    m_isEmpty = false;
}

void MovieFile::finish() {
    if (m_isEmpty)
        m_check.fail("it has no pictures");
    m_encoder.drain(m_store);
    m_container.finish();
}

} // namespace corvane::movie
