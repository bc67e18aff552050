// Reduces many colours to a small palette.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace corvane::movie {

using PaletteColor = std::array<std::uint8_t, 3>; ///< red, green, blue

/// Pixels with nearly the same colour.
struct ColorGroup {
    std::size_t cell = 0; ///< not used here; for the caller
    std::uint64_t pixels = 0;
    std::array<std::uint64_t, 3> sums{}; ///< over the pixels
    std::uint8_t index = 0;              ///< into the palette

    void add(const PaletteColor& color);
    double mean(std::size_t channel) const {
        return static_cast<double>(sums[channel]) / static_cast<double>(pixels);
    }
};

/// Divides the groups into up to mostColors (1 to 256) parts by repeatedly splitting the part with
/// the largest squared error along the channel that varies most. Returns the mean colours of the
/// parts and sets the index of each group. Every group must have pixels; their order changes.
std::vector<PaletteColor> reducedPalette(std::vector<ColorGroup>& groups, std::size_t mostColors);

} // namespace corvane::movie
