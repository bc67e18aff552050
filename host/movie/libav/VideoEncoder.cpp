#include "host/movie/libav/VideoEncoder.h"

#include "host/movie/libav/FrameRate.h"

#include <utility>

namespace corvane::movie {

VideoEncoder::VideoEncoder(const EncoderSettings& settings, const VideoShape& shape,
                           LibavCheck check)
    : m_check(std::move(check)), m_packet(m_check.made(av_packet_alloc())) {
    const AVCodec* codec = avcodec_find_encoder_by_name(settings.encoder.c_str());
    if (!codec) {
        m_check.fail("this libav has no encoder \"" + settings.encoder + "\"");
    }
    m_context.reset(m_check.made(avcodec_alloc_context3(codec)));
    setShape(shape);
    setColors(settings.frames);
    LibavDictionary options(settings.options, m_check);
    m_check(avcodec_open2(m_context.get(), codec, options.get()), "starting the encoder");
    options.requireAllUsed(m_check);
}

void VideoEncoder::setShape(const VideoShape& shape) {
    m_context->width = shape.width;
    m_context->height = shape.height;
    m_context->sample_aspect_ratio = AVRational{1, 1};
    m_context->framerate = shape.rate;
    m_context->time_base = av_inv_q(shape.rate);
    m_context->gop_size = picturesPerGroup(shape.rate);
    m_context->thread_count = 0; // one per core
    if (shape.headerApart) {
        m_context->flags |= AV_CODEC_FLAG_GLOBAL_HEADER;
    }
}

/// Players guess what is not labelled, and they guess differently.
void VideoEncoder::setColors(const FrameKind& frames) {
    m_context->pix_fmt = frames.pixelFormat;
    m_context->color_range = rangeOf(frames.colors);
    m_context->colorspace = matrixOf(frames.colors, m_context->height);
    m_context->color_primaries = AVCOL_PRI_BT709;
    m_context->color_trc = AVCOL_TRC_BT709;
    if (frames.pixelFormat == AV_PIX_FMT_YUV420P) {
        m_context->chroma_sample_location = AVCHROMA_LOC_LEFT;
    }
}

void VideoEncoder::encode(AVFrame* frame, const PacketTaker& taker) {
    frame->pts = m_frames++;
    send(frame, taker);
}

void VideoEncoder::drain(const PacketTaker& taker) {
    send(nullptr, taker);
}

void VideoEncoder::send(AVFrame* frame, const PacketTaker& taker) {
    m_check(avcodec_send_frame(m_context.get(), frame), "compressing a picture");
    for (;;) {
        const int code = avcodec_receive_packet(m_context.get(), m_packet.get());
        if (code == AVERROR(EAGAIN) || code == AVERROR_EOF) {
            return;
        }
        m_check(code, "compressing a picture");
        m_packet->duration = 1;
        taker(m_packet.get());
        av_packet_unref(m_packet.get());
    }
}

const EncoderSettings& availableEncoder(const VideoSettings& settings, const LibavCheck& check) {
    for (const EncoderSettings& encoder : settings.encoders) {
        if (avcodec_find_encoder_by_name(encoder.encoder.c_str())) {
            return encoder;
        }
    }
    check.fail("this libav has no encoder \"" + settings.encoders.front().encoder +
               "\"; install a libav that has it");
}

} // namespace corvane::movie
