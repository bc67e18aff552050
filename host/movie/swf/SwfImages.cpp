#include "host/movie/swf/SwfImages.h"

#include "host/movie/swf/SwfJpegImages.h"
#include "host/movie/swf/SwfPaletteImages.h"
#include "host/movie/swf/SwfTrueColorImages.h"

namespace corvane::movie {

std::unique_ptr<SwfImages> swfImages(const host::MovieRequest& request, const LibavCheck& check) {
    switch (request.flashImageType) {
    case FlashImageType_JPEG:
        return std::make_unique<SwfJpegImages>(request, check);
    case FlashImageType_256Color:
        return std::make_unique<SwfPaletteImages>(request.flashCompression);
    case FlashImageType_Lossless:
        break;
    }
    return std::make_unique<SwfTrueColorImages>(request.flashCompression);
}

} // namespace corvane::movie
