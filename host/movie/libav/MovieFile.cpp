#include "host/movie/libav/MovieFile.h"

#include "host/movie/libav/FrameRate.h"
#include "host/movie/libav/SizeCheck.h"
#include "host/movie/libav/SizeText.h"

#include <memory>
#include <string>

namespace corvane::movie {

namespace {

struct CodecParametersDeleter {
    void operator()(AVCodecParameters* parameters) const { avcodec_parameters_free(&parameters); }
};

VideoShape videoShape(const PictureConverter& converter, const OutputContainer& container,
                      AVRational rate) {
    VideoShape shape;
    shape.width = converter.frameWidth();
    shape.height = converter.frameHeight();
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

MovieFile::MovieFile(const host::MovieRequest& request, const VideoSettings& settings)
    : MovieFile(request, settings, availableEncoder(settings, LibavCheck(request.path)),
                LibavCheck(request.path)) {}

MovieFile::MovieFile(const host::MovieRequest& request, const VideoSettings& settings,
                     const EncoderSettings& encoder, const LibavCheck& check)
    : m_check(checkedSize(request, encoder.largestSide, check)),
      m_width(request.width),
      m_height(request.height),
      m_converter(request.width, request.height, encoder.frames, check),
      m_container(settings.container, check),
      m_encoder(encoder,
                videoShape(m_converter, m_container,
                           frameRate(request.framesPerSecond, encoder.largestRateTerm)),
                check),
      m_store([this](AVPacket* packet) { m_container.write(packet); }) {
    begin(m_container, m_encoder.context(), settings.containerOptions, check);
}

std::string MovieFile::note() const {
    const int width = m_converter.frameWidth();
    const int height = m_converter.frameHeight();
    if (width == m_width && height == m_height) {
        return {};
    }
    return "The pictures of the movie have " + sizeText(width, height) + " pixels instead of " +
           sizeText(m_width, m_height) +
           ", since its format takes only even sizes; the last column or row is repeated.";
}

void MovieFile::write(const host::Picture& picture) {
    m_encoder.encode(m_converter.convert(picture), m_store);
    m_isEmpty = false;
}

void MovieFile::finish() {
    if (m_isEmpty) {
        m_check.fail("it has no pictures");
    }
    m_encoder.drain(m_store);
    m_container.finish();
}

} // namespace corvane::movie
