// Turns pictures into frames of the kind that encoders take.
#pragma once

#include "host/core/Picture.h"
#include "host/movie/LibavCheck.h"
#include "host/movie/LibavHandles.h"

namespace corvane::movie {

/// Serves a whole movie. The colours follow BT.709 in limited range: what players expect of a video
/// whatever its size, once the video says so.
class PictureConverter {
public:
    /// The size is that of the pictures. Where the pixel format shares colours between pixels the
    /// frames are larger by a repeated last column or row, so that they hold whole groups of them.
    PictureConverter(int width, int height, AVPixelFormat format, const LibavCheck& check);

    int frameWidth() const { return m_frame->width; }
    int frameHeight() const { return m_frame->height; }

    /// The frame belongs to the converter, and is good until the next call.
    AVFrame* convert(const host::Picture& picture);

private:
    FrameHandle makeFrame(int width, int height, AVPixelFormat format) const;
    void makeScaler();
    void copyPadded(const host::Picture& picture);

    LibavCheck m_check;
    int m_width;
    int m_height;
    FrameHandle m_source; ///< aligned and padded the way swscale likes to read it
    FrameHandle m_frame;
    ScalerHandle m_scaler;
};

} // namespace corvane::movie
