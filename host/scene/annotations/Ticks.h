// Round numbers for scales.
#pragma once

#include <string>
#include <vector>

namespace corvane::scene {

struct Tick {
    double value = 0.0;
    std::string label;
};

/// At most maximumCount (>= 2) round numbers, evenly spaced, from minimum to maximum, labelled with
/// as many digits as distinguish them. A range without extent has one number.
std::vector<Tick> roundTicks(double minimum, double maximum, int maximumCount);

} // namespace corvane::scene
