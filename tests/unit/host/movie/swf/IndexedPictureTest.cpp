// Pictures of up to 256 colours.
#include "host/movie/swf/IndexedPicture.h"

#include "tests/unit/host/movie/DecodedMovie.h"
#include "tests/unit/host/movie/TestMovie.h"
#include "tests/unit/host/movie/swf/ShownPicture.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace corvane::movie_test {
namespace {

/// One pixel of each of so many colours, which differ in their lowest bits too.
host::Picture pictureOfColors(int count) {
    host::Picture picture = uniformPicture(count, 1, {});
    for (int n = 0; n < count; ++n) {
        picture.rgba[static_cast<std::size_t>(4 * n)] = static_cast<std::uint8_t>(n);
        picture.rgba[static_cast<std::size_t>(4 * n + 1)] = static_cast<std::uint8_t>(n / 256);
    }
    return picture;
}

TEST(IndexedPicture, keeps256ColorsExactly) {
    for (const int count : {1, 2, 255, 256}) {
        const host::Picture picture = pictureOfColors(count);
        const movie::IndexedPicture indexed = movie::indexed(picture);
        EXPECT_EQ(indexed.palette.size(), static_cast<std::size_t>(count));
        EXPECT_EQ(shown(indexed, count, 1), picture);
    }
}

TEST(IndexedPicture, hasNoMoreThan256ColorsOfMany) {
    for (const host::Picture& picture : {pictureOfColors(257), noisyPicture(200, 200, 1)}) {
        const movie::IndexedPicture indexed = movie::indexed(picture);
        EXPECT_LE(indexed.palette.size(), 256U);
        EXPECT_EQ(indexed.indices.size(), picture.rgba.size() / 4);
        EXPECT_GT(psnr(shown(indexed, picture.width, picture.height), picture), 20.0);
    }
}

/// The nearest colours of the usual fixed palette: 6 levels each of red, green and blue.
host::Picture inFixedPalette(host::Picture picture) {
    for (std::size_t i = 0; i < picture.rgba.size(); ++i) {
        if (i % 4 != 3) {
            picture.rgba[i] = static_cast<std::uint8_t>((picture.rgba[i] + 25) / 51 * 51);
        }
    }
    return picture;
}

TEST(IndexedPicture, isMuchBetterThanWithAFixedPalette) {
    for (int n = 0; n < 3; ++n) {
        const host::Picture picture = movingPicture(640, 480, 10 * n);
        const double quality = psnr(shown(movie::indexed(picture), 640, 480), picture);
        EXPECT_GT(quality, psnr(inFixedPalette(picture), picture) + 6.0);
        EXPECT_GT(quality, 31.0);
    }
}

TEST(IndexedPicture, hasTheFineStepsOfAGrayRamp) {
    host::Picture ramp = uniformPicture(300, 300, {});
    for (int y = 0; y < 300; ++y) {
        for (int x = 0; x < 300; ++x) {
            std::uint8_t* at = ramp.rgba.data() + 4 * (300 * y + x);
            at[0] = at[1] = at[2] = static_cast<std::uint8_t>(x * 255 / 299);
            at[2] = static_cast<std::uint8_t>(std::min(255, at[2] + y % 2)); // beyond 256 colours
        }
    }
    EXPECT_GT(psnr(shown(movie::indexed(ramp), 300, 300), ramp), 45.0);
}

} // namespace
} // namespace corvane::movie_test
