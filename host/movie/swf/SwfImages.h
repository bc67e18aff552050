// The image types of SWF movies.
#pragma once

#include "host/core/ports/Ports.h"
#include "host/movie/libav/LibavCheck.h"
#include "host/movie/swf/SwfBitmap.h"

#include <functional>
#include <memory>

namespace corvane::movie {

/// Compresses pictures; the bitmaps may come later than their pictures, and come in their order.
class SwfImages {
public:
    using Taker = std::function<void(SwfBitmap)>;

    virtual ~SwfImages() = default;
    virtual void encode(const host::Picture& picture, const Taker& taker) = 0;
    /// Gives what is left to the taker.
    virtual void drain(const Taker&) {}
};

/// Throws HostError when such images cannot be made.
std::unique_ptr<SwfImages> swfImages(const host::MovieRequest& request, const LibavCheck& check);

} // namespace corvane::movie
