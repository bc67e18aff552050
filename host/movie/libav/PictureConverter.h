// Converts pictures to the pixel formats of encoders.
#pragma once

#include "host/core/ports/Picture.h"
#include "host/movie/libav/LibavCheck.h"
#include "host/movie/libav/LibavHandles.h"
#include "host/movie/libav/VideoSettings.h"

#include <cstdint>

namespace corvane::movie {

/// One converter is used for all pictures of a movie.
class PictureConverter {
public:
    /// width, height: of the pictures. With chroma subsampling, the last column or row is repeated
    /// where that is needed to fill whole groups of pixels.
    PictureConverter(int width, int height, const FrameKind& kind, const LibavCheck& check);

    int frameWidth() const { return m_frame->width; }
    int frameHeight() const { return m_frame->height; }

    /// The frame belongs to the converter and is valid until the next call.
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
    FrameHandle m_source; ///< the picture, aligned and padded for swscale
    FrameHandle m_frame;
    ScalerHandle m_scaler;
};

} // namespace corvane::movie
