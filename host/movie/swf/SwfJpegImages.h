// JPEG images of SWF movies.
#pragma once

#include "host/movie/libav/PictureConverter.h"
#include "host/movie/libav/VideoEncoder.h"
#include "host/movie/libav/VideoSettings.h"
#include "host/movie/swf/SwfImages.h"

namespace corvane::movie {

/// DefineBitsJPEG2. FlashCompressionType_SmallestSize optimizes the Huffman tables of each picture.
class SwfJpegImages : public SwfImages {
public:
    SwfJpegImages(const host::MovieRequest& request, const LibavCheck& check);
    void encode(const host::Picture& picture, const Taker& taker) override;
    void drain(const Taker& taker) override;

private:
    SwfJpegImages(const host::MovieRequest& request, const EncoderSettings& settings,
                  const LibavCheck& check);

    PictureConverter m_converter;
    VideoEncoder m_encoder;
};

} // namespace corvane::movie
