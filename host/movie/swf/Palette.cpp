#include "host/movie/swf/Palette.h"

#include <algorithm>
#include <cmath>

namespace corvane::movie {

namespace {

using Groups = std::vector<ColorGroup>::iterator;

/// Groups that share one colour of the palette.
struct Part {
    Groups first;
    Groups last;
    std::array<double, 3> mean{};
    std::array<double, 3> errors{}; ///< sums of squares

    double error() const { return errors[0] + errors[1] + errors[2]; }
};

Part measured(Groups first, Groups last) {
    Part part{first, last, {}, {}};
    double pixels = 0.0;
    for (auto group = first; group != last; ++group) {
        pixels += static_cast<double>(group->pixels);
        for (std::size_t i = 0; i < 3; ++i) {
            part.mean[i] += static_cast<double>(group->sums[i]);
        }
    }
    for (double& mean : part.mean) {
        mean /= pixels;
    }
    for (auto group = first; group != last; ++group) {
        for (std::size_t i = 0; i < 3; ++i) {
            const double distance = group->mean(i) - part.mean[i];
            part.errors[i] += static_cast<double>(group->pixels) * distance * distance;
        }
    }
    return part;
}

/// Partitions the groups at the mean of the channel that varies most; returns the boundary.
Groups cut(const Part& part) {
    const auto widest = std::max_element(part.errors.begin(), part.errors.end());
    const auto channel = static_cast<std::size_t>(widest - part.errors.begin());
    return std::partition(part.first, part.last, [&](const ColorGroup& group) {
        return group.mean(channel) <= part.mean[channel];
    });
}

/// False if nothing is left to divide.
bool divideWorst(std::vector<Part>& parts) {
    const auto worst =
        std::max_element(parts.begin(), parts.end(),
                         [](const Part& a, const Part& b) { return a.error() < b.error(); });
    const Groups middle = cut(*worst);
    if (middle == worst->first || middle == worst->last) {
        return false;
    }
    const Part right = measured(middle, worst->last);
    *worst = measured(worst->first, middle);
    parts.push_back(right);
    return true;
}

PaletteColor rounded(const std::array<double, 3>& color) {
    PaletteColor result{};
    for (std::size_t i = 0; i < 3; ++i) {
        result[i] = static_cast<std::uint8_t>(std::lround(color[i]));
    }
    return result;
}

} // namespace

void ColorGroup::add(const PaletteColor& color) {
    ++pixels;
    for (std::size_t i = 0; i < 3; ++i) {
        sums[i] += color[i];
    }
}

std::vector<PaletteColor> reducedPalette(std::vector<ColorGroup>& groups, std::size_t mostColors) {
    std::vector<Part> parts{measured(groups.begin(), groups.end())};
    while (parts.size() < mostColors && divideWorst(parts)) {
        continue;
    }
    std::vector<PaletteColor> palette;
    for (const Part& part : parts) {
        for (auto group = part.first; group != part.last; ++group) {
            group->index = static_cast<std::uint8_t>(palette.size());
        }
        palette.push_back(rounded(part.mean));
    }
    return palette;
}

} // namespace corvane::movie
