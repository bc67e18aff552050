// The comparison itself.
#include "tests/golden/GoldenPicture.h"
#include "tests/golden/PngFile.h"
#include "tests/support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace corvane::test {

namespace {

host::Picture grayPicture(int width, int height, std::uint8_t gray) {
    host::Picture picture{width, height, {}};
    for (int i = 0; i < width * height; ++i) {
        picture.rgba.insert(picture.rgba.end(), {gray, gray, gray, 255});
    }
    return picture;
}

} // namespace

TEST(GoldenPicture, pngFilesGiveBackWhatWasWritten) {
    const TempFolder folder;
    host::Picture picture = grayPicture(5, 3, 0);
    for (std::size_t i = 0; i < picture.rgba.size(); ++i) {
        if (i % 4 != 3) {
            picture.rgba[i] = static_cast<std::uint8_t>(17 * i);
        }
    }
    writePng(folder.file("a.png"), picture);
    EXPECT_EQ(readPng(folder.file("a.png")), picture);
}

TEST(GoldenPicture, worstAndMean) {
    const host::Picture a = grayPicture(10, 10, 100);
    host::Picture b = a;
    EXPECT_EQ(difference(a, b).worst, 0);
    EXPECT_EQ(difference(a, b).mean, 0.0);
    b.rgba[4] = 70;
    EXPECT_EQ(difference(a, b).worst, 30);
    EXPECT_DOUBLE_EQ(difference(a, b).mean, 0.1);
}

TEST(GoldenPicture, aMissingPictureFailsAndLeavesACandidate) {
    const auto result = matchesGolden("there-is-no-such-picture", grayPicture(2, 2, 5));
    EXPECT_FALSE(result);
    EXPECT_THAT(result.message(), testing::HasSubstr("there-is-no-such-picture.candidate.png"));
}

TEST(GoldenPicture, otherPicturesFail) {
    const auto size = matchesGolden("surface", grayPicture(2, 2, 5));
    EXPECT_FALSE(size);
    EXPECT_THAT(size.message(), testing::HasSubstr("2 x 2"));
    const auto colours = matchesGolden("surface", grayPicture(320, 180, 5));
    EXPECT_FALSE(colours);
    EXPECT_THAT(colours.message(), testing::HasSubstr("limit 80"));
    EXPECT_THAT(colours.message(), testing::HasSubstr("surface.difference.png"));
}

} // namespace corvane::test
