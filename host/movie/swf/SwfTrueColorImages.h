// Lossless images of SWF movies.
#pragma once

#include "host/movie/swf/SwfImages.h"

namespace corvane::movie {

/// DefineBitsLossless with 24 bits per pixel.
class SwfTrueColorImages : public SwfImages {
public:
    explicit SwfTrueColorImages(FlashCompressionType_e compression) : m_compression(compression) {}
    void encode(const host::Picture& picture, const Taker& taker) override;

private:
    FlashCompressionType_e m_compression;
};

} // namespace corvane::movie
