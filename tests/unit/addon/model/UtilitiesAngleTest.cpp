// Angles brought into -180..180.
#include "addon/model/Utilities.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace corvane::corutiltools {
namespace {

double clamped(double angle) {
    ClampAngleTo180(angle);
    return angle;
}

struct Angle {
    double before;
    double after;
};

class ClampAngleTo180Test : public testing::TestWithParam<Angle> {};

TEST_P(ClampAngleTo180Test, takesWholeTurnsAway) {
    EXPECT_EQ(clamped(GetParam().before), GetParam().after);
}

INSTANTIATE_TEST_SUITE_P(
    Angles, ClampAngleTo180Test,
    testing::Values(Angle{0.0, 0.0}, Angle{90.0, 90.0}, Angle{-90.0, -90.0}, Angle{180.0, 180.0},
                    Angle{-180.0, -180.0}, Angle{181.0, -179.0}, Angle{-181.0, 179.0},
                    Angle{360.0, 0.0}, Angle{-360.0, 0.0}, Angle{540.0, 180.0},
                    Angle{-540.0, -180.0}, Angle{720.0, 0.0}, Angle{-359.0, 1.0},
                    Angle{340.0, -20.0}, Angle{-340.0, 20.0}, Angle{3600.0 + 45.0, 45.0},
                    Angle{360.0 * 1e6 + 30.0, 30.0}, Angle{-360.0 * 1e6 - 30.0, -30.0},
                    Angle{360.0 * 1e6 + 200.0, -160.0}, Angle{360.0 * 1e6 + 180.0, 180.0}));

TEST(ClampAngleTo180, staysWithinBoundsFarOut) {
    for (double angle :
         {1e6 + 1.0, 1e12 + 0.5, 1e18, -1e18, 1e300, -1e300, std::numeric_limits<double>::max()}) {
        EXPECT_LE(std::abs(clamped(angle)), 180.0) << angle;
    }
}

TEST(ClampAngleTo180, leavesWhatIsNotFinite) {
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(clamped(infinity), infinity);
    EXPECT_EQ(clamped(-infinity), -infinity);
    EXPECT_TRUE(std::isnan(clamped(std::numeric_limits<double>::quiet_NaN())));
}

} // namespace
} // namespace corvane::corutiltools
