// The few colours that suit many best.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace corvane::movie {

using PaletteColor = std::array<std::uint8_t, 3>; ///< red, green, blue

/// Pixels of nearly the same colour.
struct ColorGroup {
    std::size_t cell = 0; ///< the caller's own
    std::uint64_t pixels = 0;
    std::array<std::uint64_t, 3> sums{}; ///< over the pixels
    std::uint8_t index = 0;              ///< into the palette

    void add(const PaletteColor& color);
    double mean(std::size_t channel) const {
        return static_cast<double>(sums[channel]) / static_cast<double>(pixels);
    }
};

/// Divides the groups into up to mostColors (1 to 256) parts by cutting, again and again, the part
/// with the largest squared error across its longest spread; returns the mean colours of the parts,
/// and sets each group's index. The groups, which have pixels, are put in another order.
std::vector<PaletteColor> reducedPalette(std::vector<ColorGroup>& groups, std::size_t mostColors);

} // namespace corvane::movie
