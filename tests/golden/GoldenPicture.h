// Compares a picture with one that somebody has looked at.
#pragma once

#include "host/core/ports/Picture.h"

#include <gtest/gtest.h>

#include <string>

namespace corvane::test {

/// How far two pictures are apart, in steps of 0..255.
struct PictureDifference {
    int worst = 0; ///< of any channel of any pixel
    /// Over all channels of all pixels, of what goes beyond one step. Versions of Mesa's renderer
    /// round the colours between two others up or down, which nobody sees, but which would be all
    /// of the mean where a background passes from one colour to another.
    double mean = 0.0;
};
/// Both have the same size.
PictureDifference difference(const host::Picture& a, const host::Picture& b);

struct GoldenLimits {
    /// Drawn twice larger, a pixel on an edge that moves by rounding alone changes by a quarter.
    int worst = 80;
    double mean = 0.1;
};

/// Compares with pictures/NAME.png. When they differ, the result names value, limit and the files
/// that show the picture and the difference, in the build tree. Without such a picture it fails and
/// leaves a candidate there: look at it, and copy it to pictures/ if it is right.
testing::AssertionResult matchesGolden(const std::string& name, const host::Picture& picture,
                                       const GoldenLimits& limits = {});

} // namespace corvane::test
