// A picture in memory.
#pragma once

#include "hostapi/CorEnums.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace corvane::host {

/// Rows from the top, pixels from the left, four bytes a pixel: red, green, blue, 255.
struct Picture {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> rgba;

    bool isEmpty() const { return rgba.empty(); }
    const std::uint8_t* row(int y) const {
        return rgba.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(width) * 4U;
    }
    friend bool operator==(const Picture&, const Picture&) = default;
};

/// What to draw of a page, and how large.
struct PictureRequest {
    ExportRegion_e region = ExportRegion_WorkArea;
    int width = 0;       ///< pixels of the finished picture
    int height = 0;      ///< pixels of the finished picture
    int supersample = 1; ///< drawn this many times larger in both directions, then filtered down

    friend bool operator==(const PictureRequest&, const PictureRequest&) = default;
};

} // namespace corvane::host
