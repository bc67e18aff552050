// Compresses the frames of a movie.
#pragma once

#include "host/movie/libav/LibavCheck.h"
#include "host/movie/libav/LibavHandles.h"
#include "host/movie/libav/VideoSettings.h"

#include <functional>

namespace corvane::movie {

/// What the encoder is to know of the movie.
struct VideoShape {
    int width = 0;
    int height = 0;
    AVRational rate{0, 1};
    bool headerApart = false; ///< the container keeps the stream's header, not the packets
};

class VideoEncoder {
public:
    /// Times of packets count frames. The packet is the encoder's own.
    using PacketTaker = std::function<void(AVPacket*)>;

    /// Throws HostError when there is no such encoder, or when it does not take such a movie.
    VideoEncoder(const EncoderSettings& settings, const VideoShape& shape, LibavCheck check);

    const AVCodecContext& context() const { return *m_context; }

    /// Gives the frame to the encoder, and to the taker what is ready by then.
    void encode(AVFrame* frame, const PacketTaker& taker);
    /// Gives all that is left to the taker.
    void drain(const PacketTaker& taker);

private:
    void setShape(const VideoShape& shape);
    void setColors(const FrameKind& frames);
    void send(AVFrame* frame, const PacketTaker& taker);

    LibavCheck m_check;
    CodecContextHandle m_context;
    PacketHandle m_packet;
    std::int64_t m_frames = 0;
};

/// The first of the encoders that this libav has. Throws HostError when it has none.
const EncoderSettings& availableEncoder(const VideoSettings& settings, const LibavCheck& check);

} // namespace corvane::movie
