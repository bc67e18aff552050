// Compresses the frames of a movie with libavcodec.
#pragma once

#include "host/movie/libav/LibavCheck.h"
#include "host/movie/libav/LibavHandles.h"
#include "host/movie/libav/VideoSettings.h"

#include <functional>

namespace corvane::movie {

/// The properties of a movie that the encoder needs.
struct VideoShape {
    int width = 0;
    int height = 0;
    AVRational rate{0, 1};
    bool headerApart = false; ///< the stream's header goes into the container, not the packets
};

class VideoEncoder {
public:
    /// Timestamps of packets count frames. The packet belongs to the encoder.
    using PacketTaker = std::function<void(AVPacket*)>;

    /// Throws HostError if libav has no such encoder, or if it does not support such a movie.
    VideoEncoder(const EncoderSettings& settings, const VideoShape& shape, LibavCheck check);

    const AVCodecContext& context() const { return *m_context; }

    /// Encodes the frame, and passes finished packets to the taker.
    void encode(AVFrame* frame, const PacketTaker& taker);
    /// Passes all remaining packets to the taker.
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

/// The first of the encoders that this libav was built with. Throws HostError if there is none.
const EncoderSettings& availableEncoder(const VideoSettings& settings, const LibavCheck& check);

} // namespace corvane::movie
