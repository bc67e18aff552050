// The mesh that the samples of all formats hold.
#pragma once

#include "host/core/page/Vec3.h"

#include <array>
#include <vector>

namespace corvane::test {

/// 2 x 2 x 2 cells over 0..2 in each direction. Points and cells count along x first.
std::vector<host::Vec3> boxPoints();
std::vector<std::array<int, 8>> boxCells(); ///< points from 0 on, in the order of VTK and others

/// The times at which samples have values.
constexpr std::array<double, 3> sampleTimes{0.0, 0.25, 1.5};

/// Of the variable "p".
constexpr double samplePressure(double x, double time) {
    return x + 10.0 * time;
}

} // namespace corvane::test
