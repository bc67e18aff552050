#include "host/movie/swf/SwfTrueColorImages.h"

#include "host/movie/swf/Deflated.h"
#include "host/movie/swf/SwfBytes.h"

namespace corvane::movie {

namespace {

/// Four bytes per pixel: 0, red, green, blue.
std::vector<std::uint8_t> pixelsOf(const host::Picture& picture) {
    std::vector<std::uint8_t> pixels(picture.rgba.size());
    for (std::size_t i = 0; i + 3 < pixels.size(); i += 4) {
        for (std::size_t channel = 0; channel < 3; ++channel) {
            pixels[i + channel + 1] = picture.rgba[i + channel];
        }
    }
    return pixels;
}

} // namespace

void SwfTrueColorImages::encode(const host::Picture& picture, const Taker& taker) {
    constexpr unsigned format24Bits = 5;
    SwfBytes bitmap;
    bitmap.u8(format24Bits);
    bitmap.u16(static_cast<unsigned>(picture.width));
    bitmap.u16(static_cast<unsigned>(picture.height));
    bitmap.append(deflated(pixelsOf(picture), m_compression));
    taker({swfDefineBitsLossless, bitmap.bytes()});
}

} // namespace corvane::movie
