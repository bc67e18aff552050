#include "host/movie/swf/IndexedPicture.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <unordered_map>
#include <utility>

namespace corvane::movie {

namespace {

constexpr std::size_t mostColors = 256;

PaletteColor colorAt(const host::Picture& picture, std::size_t pixel) {
    const std::uint8_t* at = picture.rgba.data() + 4 * pixel;
    return {at[0], at[1], at[2]};
}

std::size_t pixelsOf(const host::Picture& picture) {
    return picture.rgba.size() / 4;
}

/// Empty if there are too many colours.
std::optional<IndexedPicture> exactlyIndexed(const host::Picture& picture) {
    IndexedPicture result;
    result.indices.reserve(pixelsOf(picture));
    std::unordered_map<std::uint32_t, std::uint8_t> known;
    for (std::size_t pixel = 0; pixel < pixelsOf(picture); ++pixel) {
        const PaletteColor color = colorAt(picture, pixel);
        const std::uint32_t key = color[0] | color[1] << 8U | color[2] << 16U;
        const auto next = static_cast<std::uint8_t>(result.palette.size());
        const auto [entry, isNew] = known.try_emplace(key, next);
        if (isNew && result.palette.size() == mostColors) {
            return std::nullopt;
        }
        if (isNew) {
            result.palette.push_back(color);
        }
        result.indices.push_back(entry->second);
    }
    return result;
}

/// Colours that differ only in their lowest two bits share a cell.
std::size_t cellOf(const PaletteColor& color) {
    const auto high = [&](std::size_t channel) { return std::size_t{color[channel]} >> 2U; };
    return high(0) << 12U | high(1) << 6U | high(2);
}

constexpr std::size_t cells = 1U << 18U;

std::vector<ColorGroup> groupsOf(const host::Picture& picture) {
    std::vector<ColorGroup> all(cells);
    for (std::size_t pixel = 0; pixel < pixelsOf(picture); ++pixel) {
        const PaletteColor color = colorAt(picture, pixel);
        all[cellOf(color)].add(color);
    }
    std::vector<ColorGroup> used;
    for (std::size_t cell = 0; cell < cells; ++cell) {
        if (all[cell].pixels > 0) {
            all[cell].cell = cell;
            used.push_back(all[cell]);
        }
    }
    return used;
}

IndexedPicture nearlyIndexed(const host::Picture& picture) {
    std::vector<ColorGroup> groups = groupsOf(picture);
    IndexedPicture result;
    result.palette = reducedPalette(groups, mostColors);
    std::vector<std::uint8_t> indexOfCell(cells);
    for (const ColorGroup& group : groups) {
        indexOfCell[group.cell] = group.index;
    }
    result.indices.reserve(pixelsOf(picture));
    for (std::size_t pixel = 0; pixel < pixelsOf(picture); ++pixel) {
        result.indices.push_back(indexOfCell[cellOf(colorAt(picture, pixel))]);
    }
    return result;
}

} // namespace

IndexedPicture indexed(const host::Picture& picture) {
    if (auto exact = exactlyIndexed(picture)) {
        return *std::move(exact);
    }
    return nearlyIndexed(picture);
}

} // namespace corvane::movie
