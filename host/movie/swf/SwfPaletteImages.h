// Images of 256 colours of SWF movies.
#pragma once

#include "host/movie/swf/SwfImages.h"

namespace corvane::movie {

/// DefineBitsLossless with a separate palette for each picture, so that colours are right even
/// when a movie fades.
class SwfPaletteImages : public SwfImages {
public:
    explicit SwfPaletteImages(FlashCompressionType_e compression) : m_compression(compression) {}
    void encode(const host::Picture& picture, const Taker& taker) override;

private:
    FlashCompressionType_e m_compression;
};

} // namespace corvane::movie
