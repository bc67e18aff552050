#include "host/scene/annotations/Ticks.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace corvane::scene {

namespace {

/// The smallest 1, 2 or 5 times a power of ten that divides the range into at most that many steps.
double roundStep(double extent, int steps) {
    const double rough = extent / steps;
    const double power = std::pow(10.0, std::floor(std::log10(rough)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (factor * power >= rough * (1.0 - 1e-9)) {
            return factor * power;
        }
    }
    return 10.0 * power;
}

std::string format(const char* pattern, int digits, double value) {
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), pattern, digits, value);
    return text.data();
}

std::string label(double value, double step, double largest) {
    const int decimals = static_cast<int>(-std::floor(std::log10(step) + 1e-9));
    if (largest < 1e7 && decimals <= 4) {
        return format("%.*f", std::max(0, decimals), value);
    }
    const int digits = static_cast<int>(std::floor(std::log10(largest) + 1e-9)) + decimals + 1;
    return format("%.*g", std::clamp(digits, 1, 15), value);
}

} // namespace

std::vector<Tick> roundTicks(double minimum, double maximum, int maximumCount) {
    const double extent = maximum - minimum;
    const double largest = std::max(std::abs(minimum), std::abs(maximum));
    if (!(extent > 1e-12 * largest)) {
        return {{minimum, format("%.*g", 5, minimum)}};
    }
    const double step = roundStep(extent, maximumCount - 1);
    const double first = std::ceil(minimum / step - 1e-9);
    const double last = std::floor(maximum / step + 1e-9);
    std::vector<Tick> ticks;
    for (double n = first; n <= last; n += 1.0) {
        const double value = n == 0.0 ? 0.0 : n * step;
        ticks.push_back({value, label(value, step, largest)});
    }
    return ticks;
}

} // namespace corvane::scene
