// Owning handles for objects that libav allocates.
#pragma once

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/dict.h>
#include <libavutil/frame.h>
#include <libswscale/swscale.h>
}

#include <memory>

namespace corvane::movie {

struct CodecContextDeleter {
    void operator()(AVCodecContext* context) const { avcodec_free_context(&context); }
};
using CodecContextHandle = std::unique_ptr<AVCodecContext, CodecContextDeleter>;

struct FrameDeleter {
    void operator()(AVFrame* frame) const { av_frame_free(&frame); }
};
using FrameHandle = std::unique_ptr<AVFrame, FrameDeleter>;

struct PacketDeleter {
    void operator()(AVPacket* packet) const { av_packet_free(&packet); }
};
using PacketHandle = std::unique_ptr<AVPacket, PacketDeleter>;

struct ScalerDeleter {
    void operator()(SwsContext* scaler) const { sws_freeContext(scaler); }
};
using ScalerHandle = std::unique_ptr<SwsContext, ScalerDeleter>;

struct InputDeleter {
    void operator()(AVFormatContext* input) const { avformat_close_input(&input); }
};
using InputHandle = std::unique_ptr<AVFormatContext, InputDeleter>;

/// Closes the file too; close it beforehand to learn whether that succeeded.
struct OutputDeleter {
    void operator()(AVFormatContext* output) const {
        avio_closep(&output->pb);
        avformat_free_context(output);
    }
};
using OutputHandle = std::unique_ptr<AVFormatContext, OutputDeleter>;

} // namespace corvane::movie
