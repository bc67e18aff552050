// Pictures that are not what the golden one is.
#include "tests/golden/GoldenPicture.h"
#include "tests/golden/GrayPicture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace corvane::test {

TEST(DifferentPicture, failsAndSaysHow) {
    const auto size = matchesGolden("surface", grayPicture(2, 2, 5));
    EXPECT_FALSE(size);
    EXPECT_THAT(size.message(), testing::HasSubstr("2 x 2"));
    const auto colours = matchesGolden("surface", grayPicture(320, 180, 5));
    EXPECT_FALSE(colours);
    EXPECT_THAT(colours.message(), testing::HasSubstr("limit 80"));
    EXPECT_THAT(colours.message(), testing::HasSubstr("surface.difference.png"));
}

} // namespace corvane::test
