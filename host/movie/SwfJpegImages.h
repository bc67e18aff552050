// JPEG images of SWF movies.
#pragma once

#include "host/movie/PictureConverter.h"
#include "host/movie/SwfImages.h"
#include "host/movie/VideoEncoder.h"
#include "host/movie/VideoSettings.h"

namespace corvane::movie {

/// DefineBitsJPEG2. The smallest size has code words for each picture, and the same pictures.
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
