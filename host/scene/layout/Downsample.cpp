#include "host/scene/layout/Downsample.h"

#include <algorithm>
#include <vector>

namespace corvane::scene {

namespace {

constexpr std::size_t channels = 4;

void makeOpaque(std::vector<std::uint8_t>& rgba) {
    for (std::size_t i = channels - 1; i < rgba.size(); i += channels) {
        rgba[i] = 255;
    }
}

/// Adds factor pixels of a drawn row to each pixel of the result.
void addRow(std::vector<std::uint32_t>& sums, const std::uint8_t* row, std::size_t factor) {
    for (std::size_t x = 0; x < sums.size() / channels; ++x) {
        for (std::size_t k = 0; k < factor; ++k, row += channels) {
            for (std::size_t c = 0; c < channels; ++c) {
                sums[x * channels + c] += row[c];
            }
        }
    }
}

} // namespace

host::Picture finishPicture(const std::uint8_t* rgba, int width, int height, int factor) {
    const auto rowLength = static_cast<std::size_t>(width) * channels;
    const auto rows = static_cast<std::size_t>(height);
    const auto n = static_cast<std::size_t>(factor);
    const auto area = static_cast<std::uint32_t>(n * n);
    host::Picture picture{width, height, std::vector<std::uint8_t>(rowLength * rows)};
    std::vector<std::uint32_t> sums(rowLength);
    for (std::size_t y = 0; y < rows; ++y) {
        const std::uint8_t* const drawn = rgba + y * n * n * rowLength;
        std::uint8_t* const target = picture.rgba.data() + (rows - 1 - y) * rowLength;
        if (n == 1) {
            std::copy_n(drawn, rowLength, target);
            continue;
        }
        std::fill(sums.begin(), sums.end(), area / 2);
        for (std::size_t k = 0; k < n; ++k) {
            addRow(sums, drawn + k * n * rowLength, n);
        }
        std::transform(sums.begin(), sums.end(), target,
                       [area](std::uint32_t sum) { return static_cast<std::uint8_t>(sum / area); });
    }
    makeOpaque(picture.rgba);
    return picture;
}

} // namespace corvane::scene
