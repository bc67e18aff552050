#include "host/movie/swf/SwfJpegImages.h"

#include "host/movie/libav/Codecs.h"
#include "host/movie/libav/FrameRate.h"

namespace corvane::movie {

namespace {

VideoShape shapeOf(const host::MovieRequest& request, const EncoderSettings& settings) {
    VideoShape shape;
    shape.width = request.width;
    shape.height = request.height;
    shape.rate = frameRate(request.framesPerSecond, settings.largestRateTerm);
    return shape;
}

VideoEncoder::PacketTaker bitmapsFor(const SwfImages::Taker& taker) {
    return [&taker](AVPacket* packet) {
        taker({swfDefineBitsJpeg2, {packet->data, packet->data + packet->size}});
    };
}

} // namespace

SwfJpegImages::SwfJpegImages(const host::MovieRequest& request, const LibavCheck& check)
    : SwfJpegImages(request, jpeg(request.flashCompression == FlashCompressionType_SmallestSize),
                    check) {}

SwfJpegImages::SwfJpegImages(const host::MovieRequest& request, const EncoderSettings& settings,
                             const LibavCheck& check)
    : m_converter(request.width, request.height, settings.frames, check),
      m_encoder(settings, shapeOf(request, settings), check) {}

void SwfJpegImages::encode(const host::Picture& picture, const Taker& taker) {
    m_encoder.encode(m_converter.convert(picture), bitmapsFor(taker));
}

void SwfJpegImages::drain(const Taker& taker) {
    m_encoder.drain(bitmapsFor(taker));
}

} // namespace corvane::movie
