// Round numbers for scales.
#include "host/scene/annotations/Ticks.h"

#include <gtest/gtest.h>

namespace corvane::test {

namespace {

std::string labels(double minimum, double maximum, int count = 7) {
    std::string text;
    for (const auto& tick : scene::roundTicks(minimum, maximum, count)) {
        text += (text.empty() ? "" : " ") + tick.label;
    }
    return text;
}

} // namespace

TEST(Ticks, roundNumbersWithinTheRange) {
    EXPECT_EQ(labels(0.0, 1.4), "0.0 0.5 1.0");
    EXPECT_EQ(labels(0.0, 1.0), "0.0 0.2 0.4 0.6 0.8 1.0");
    EXPECT_EQ(labels(-8.97, 6.375), "-5 0 5");
    EXPECT_EQ(labels(0.0, 3.0), "0.0 0.5 1.0 1.5 2.0 2.5 3.0");
    EXPECT_EQ(labels(-250.0, 1000.0), "0 500 1000");
}

TEST(Ticks, zeroHasNoSign) {
    EXPECT_EQ(labels(-1.0, 1.0, 5), "-1.0 -0.5 0.0 0.5 1.0");
}

TEST(Ticks, smallAndLargeNumbersAreTellableApart) {
    EXPECT_EQ(labels(0.0, 4e-6, 5), "0 1e-06 2e-06 3e-06 4e-06");
    EXPECT_EQ(labels(101325.0, 101325.4, 5), "101325.0 101325.1 101325.2 101325.3 101325.4");
    EXPECT_EQ(labels(0.0, 4e7, 5), "0 1e+07 2e+07 3e+07 4e+07");
}

TEST(Ticks, neverMoreThanAskedFor) {
    for (const int count : {2, 3, 5, 7, 11}) {
        for (double extent = 0.013; extent < 1e6; extent *= 1.37) {
            const auto ticks = scene::roundTicks(-0.31 * extent, 0.69 * extent, count);
            EXPECT_LE(static_cast<int>(ticks.size()), count) << extent;
            EXPECT_GE(static_cast<int>(ticks.size()), 1) << extent;
            for (const auto& tick : ticks) {
                EXPECT_GE(tick.value, -0.311 * extent);
                EXPECT_LE(tick.value, 0.691 * extent);
            }
        }
    }
}

TEST(Ticks, aRangeWithoutExtentHasOne) {
    EXPECT_EQ(labels(2.5, 2.5), "2.5");
    EXPECT_EQ(labels(0.0, 0.0), "0");
}

} // namespace corvane::test
