#include "host/movie/swf/SwfPaletteImages.h"

#include "host/movie/swf/Deflated.h"
#include "host/movie/swf/IndexedPicture.h"
#include "host/movie/swf/SwfBytes.h"

namespace corvane::movie {

namespace {

/// Rows are padded to multiples of four bytes. Not every reader honours that, so the bitmap itself
/// is that wide; the rectangle that shows it omits the extra columns.
std::size_t storedWidth(const host::Picture& picture) {
    return (static_cast<std::size_t>(picture.width) + 3) / 4 * 4;
}

/// The palette, then the rows, padded with their last pixel.
std::vector<std::uint8_t> tableAndPixels(const IndexedPicture& picture, std::size_t width,
                                         std::size_t stored) {
    SwfBytes bytes;
    for (const PaletteColor& color : picture.palette) {
        bytes.append(color.data(), color.size());
    }
    for (std::size_t at = 0; at < picture.indices.size(); at += width) {
        bytes.append(picture.indices.data() + at, width);
        for (std::size_t filled = width; filled < stored; ++filled) {
            bytes.u8(picture.indices[at + width - 1]);
        }
    }
    return bytes.bytes();
}

} // namespace

void SwfPaletteImages::encode(const host::Picture& picture, const Taker& taker) {
    constexpr unsigned formatWithPalette = 3;
    const IndexedPicture image = indexed(picture);
    const std::size_t stored = storedWidth(picture);
    SwfBytes bitmap;
    bitmap.u8(formatWithPalette);
    bitmap.u16(static_cast<unsigned>(stored));
    bitmap.u16(static_cast<unsigned>(picture.height));
    bitmap.u8(static_cast<unsigned>(image.palette.size()) - 1);
    const auto width = static_cast<std::size_t>(picture.width);
    bitmap.append(deflated(tableAndPixels(image, width, stored), m_compression));
    taker({swfDefineBitsLossless, bitmap.bytes()});
}

} // namespace corvane::movie
