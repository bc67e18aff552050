// The comparison itself.
#include "tests/golden/GoldenPicture.h"
#include "tests/golden/GrayPicture.h"
#include "tests/golden/PngFile.h"
#include "tests/support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace corvane::test {

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
    EXPECT_DOUBLE_EQ(difference(a, b).mean, 29.0 / 300.0);
}

TEST(GoldenPicture, roundingIsNotInTheMean) {
    const PictureDifference found = difference(grayPicture(10, 10, 100), grayPicture(10, 10, 101));
    EXPECT_EQ(found.worst, 1);
    EXPECT_EQ(found.mean, 0.0);
}

TEST(GoldenPicture, aMissingPictureFailsAndLeavesACandidate) {
    const auto result = matchesGolden("there-is-no-such-picture", grayPicture(2, 2, 5));
    EXPECT_FALSE(result);
    EXPECT_THAT(result.message(), testing::HasSubstr("there-is-no-such-picture.candidate.png"));
}

} // namespace corvane::test
