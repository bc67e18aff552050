// Where a frame lies in the drawn picture.
#pragma once

#include <algorithm>

namespace corvane::scene {

/// In pixels as drawn, supersampling included; the origin is the lower left corner.
struct PixelRect {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    bool isEmpty() const { return width <= 0 || height <= 0; }
    double aspect() const { return static_cast<double>(width) / height; }
    friend bool operator==(const PixelRect&, const PixelRect&) = default;
};

inline PixelRect intersection(const PixelRect& a, const PixelRect& b) {
    const int x = std::max(a.x, b.x);
    const int y = std::max(a.y, b.y);
    return {x, y, std::min(a.x + a.width, b.x + b.width) - x,
            std::min(a.y + a.height, b.y + b.height) - y};
}

/// A frame may extend beyond the picture.
struct FrameArea {
    PixelRect full;    ///< the whole frame
    PixelRect visible; ///< the part of it inside the picture, not empty

    /// From the corner of the visible part to that of the frame: added to positions in the frame.
    int offsetX() const { return full.x - visible.x; }
    int offsetY() const { return full.y - visible.y; }
};

} // namespace corvane::scene
