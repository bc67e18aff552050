// From the pixels as they were drawn to the finished picture.
#include "host/scene/layout/Downsample.h"

#include <gtest/gtest.h>

namespace corvane::test {

TEST(Downsample, turnsRowsUpsideDownAndMakesOpaque) {
    const std::vector<std::uint8_t> drawn{1, 2, 3, 0, 4, 5, 6, 128, 7, 8, 9, 255, 10, 11, 12, 1};
    const host::Picture picture = scene::finishPicture(drawn.data(), 2, 2, 1);
    const host::Picture expected{2, 2, {7, 8, 9, 255, 10, 11, 12, 255, 1, 2, 3, 255, 4, 5, 6, 255}};
    EXPECT_EQ(picture, expected);
}

TEST(Downsample, takesTheMean) {
    std::vector<std::uint8_t> drawn;
    for (int i = 0; i < 4; ++i) {
        for (const int value : {10 * i, 200, i == 0 ? 255 : 0, 0}) {
            drawn.push_back(static_cast<std::uint8_t>(value));
        }
    }
    const host::Picture expected{1, 1, {15, 200, 64, 255}};
    EXPECT_EQ(scene::finishPicture(drawn.data(), 1, 1, 2), expected);
}

TEST(Downsample, keepsPixelsInTheirPlaces) {
    // 2 x 1 pixels from 6 x 3: the left third is black, the right one white.
    std::vector<std::uint8_t> drawn;
    for (int y = 0; y < 3; ++y) {
        for (int x = 0; x < 6; ++x) {
            drawn.insert(drawn.end(), 4, x < 3 ? 0 : 255);
        }
    }
    const host::Picture expected{2, 1, {0, 0, 0, 255, 255, 255, 255, 255}};
    EXPECT_EQ(scene::finishPicture(drawn.data(), 2, 1, 3), expected);
}

} // namespace corvane::test
