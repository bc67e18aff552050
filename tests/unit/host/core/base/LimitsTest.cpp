// Tests of ranges.
#include "host/core/base/Limits.h"

#include <gtest/gtest.h>

#include <limits>

namespace corvane::host {
namespace {

TEST(Range, containsItsEndsAndWhatLiesBetween) {
    constexpr Range<int> range{4, 7};
    for (const int inside : {4, 5, 7}) {
        EXPECT_TRUE(range.contains(inside)) << inside;
    }
    for (const int outside : {3, 8, -5}) {
        EXPECT_FALSE(range.contains(outside)) << outside;
    }
}

TEST(Range, containsNothingThatIsNoNumber) {
    EXPECT_FALSE((Range<double>{0.0, 1.0}.contains(std::numeric_limits<double>::quiet_NaN())));
}

TEST(Range, isToldByItsEnds) {
    EXPECT_EQ(rangeText(limits::framesPerSecond), "0.001 to 200");
    EXPECT_EQ(rangeText(limits::pictureSide), "4 to 32766");
}

} // namespace
} // namespace corvane::host
