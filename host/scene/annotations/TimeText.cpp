#include "host/scene/annotations/TimeText.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace corvane::scene {

namespace {

constexpr int mostDecimals = 6;

bool isWritten(double time, int decimals) {
    const double scaled = time * std::pow(10.0, decimals);
    return std::abs(scaled - std::round(scaled)) <= 1e-6 * std::max(1.0, std::abs(scaled));
}

int decimalsOf(const host::DataSet& data) {
    int decimals = 0;
    for (const host::Zone& zone : data.zones) {
        while (decimals < mostDecimals && !isWritten(zone.solutionTime, decimals)) {
            ++decimals;
        }
    }
    return decimals;
}

} // namespace

std::string timeText(double time, const host::DataSet& data) {
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "t = %.*f", decimalsOf(data), time);
    return text.data();
}

} // namespace corvane::scene
