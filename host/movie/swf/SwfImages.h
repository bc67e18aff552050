// The image types of SWF movies.
#pragma once

#include "host/core/ports/Ports.h"
#include "host/movie/libav/LibavCheck.h"
#include "host/movie/swf/SwfBitmap.h"

#include <functional>
#include <memory>

namespace corvane::movie {

/// Compresses pictures. Bitmaps keep the order of the pictures, but may be delayed.
class SwfImages {
public:
    using Taker = std::function<void(SwfBitmap)>;

    virtual ~SwfImages() = default;
    virtual void encode(const host::Picture& picture, const Taker& taker) = 0;
    /// Passes all remaining bitmaps to the taker.
    virtual void drain(const Taker&) {}
};

/// Throws HostError if such images cannot be encoded.
std::unique_ptr<SwfImages> swfImages(const host::MovieRequest& request, const LibavCheck& check);

} // namespace corvane::movie
