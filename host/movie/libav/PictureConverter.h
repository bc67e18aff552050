// Turns pictures into frames of the kind that encoders take.
#pragma once

#include "host/core/ports/Picture.h"
#include "host/movie/libav/LibavCheck.h"
#include "host/movie/libav/LibavHandles.h"
#include "host/movie/libav/VideoSettings.h"

#include <cstdint>

namespace corvane::movie {

/// Serves a whole movie.
class PictureConverter {
public:
    /// The size is that of the pictures. Where the pixel format shares colours between pixels the
    /// frames are larger by a repeated last column or row, so that they hold whole groups of them.
    PictureConverter(int width, int height, const FrameKind& kind, const LibavCheck& check);

    int frameWidth() const { return m_frame->width; }
    int frameHeight() const { return m_frame->height; }

    /// The frame belongs to the converter, and is good until the next call.
    AVFrame* convert(const host::Picture& picture);

private:
    FrameHandle makeFrame(int width, int height, AVPixelFormat format) const;
    void set(const char* name, std::int64_t value);
    void makeScaler();
    void placeSharedColors();
    void chooseMatrix();
    void copyPadded(const host::Picture& picture);

    LibavCheck m_check;
    int m_width;
    int m_height;
    FrameKind m_kind;
    FrameHandle m_source; ///< aligned and padded the way swscale likes to read it
    FrameHandle m_frame;
    ScalerHandle m_scaler;
};

} // namespace corvane::movie
