// Speeds as fractions.
#include "host/movie/libav/FrameRate.h"

#include <gtest/gtest.h>

#include <string>

namespace corvane::movie {
namespace {

struct Speed {
    double framesPerSecond;
    int numerator;
    int denominator;
    int group;
};

class FrameRate : public testing::TestWithParam<Speed> {};

TEST_P(FrameRate, isTheExactFractionOfTheDecimals) {
    const Speed& speed = GetParam();
    const AVRational rate = frameRate(speed.framesPerSecond, 1'000'000);
    EXPECT_EQ(rate.num, speed.numerator);
    EXPECT_EQ(rate.den, speed.denominator);
    EXPECT_EQ(picturesPerGroup(rate), speed.group);
}

INSTANTIATE_TEST_SUITE_P(
    Speeds, FrameRate,
    testing::Values(Speed{0.001, 1, 1000, 1}, Speed{0.002, 1, 500, 1}, Speed{0.5, 1, 2, 1},
                    Speed{1.0, 1, 1, 1}, Speed{12.345, 2469, 200, 12}, Speed{23.976, 2997, 125, 24},
                    Speed{29.97, 2997, 100, 30}, Speed{30000.0 / 1001.0, 30000, 1001, 30},
                    Speed{30.0, 30, 1, 30}, Speed{59.94, 2997, 50, 60},
                    Speed{199.999, 199999, 1000, 200}, Speed{200.0, 200, 1, 200}),
    [](const auto& test) {
        return std::to_string(test.param.numerator) + "per" +
               std::to_string(test.param.denominator);
    });

TEST(FrameRateBound, keepsBothTermsSmall) {
    const AVRational rate = frameRate(199.999, 65535);
    EXPECT_LE(rate.num, 65535);
    EXPECT_LE(rate.den, 65535);
    EXPECT_NEAR(av_q2d(rate), 199.999, 2e-3);
}

} // namespace
} // namespace corvane::movie
