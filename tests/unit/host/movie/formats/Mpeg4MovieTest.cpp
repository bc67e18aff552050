// Movies written and decoded again by a program that is not ours.
#include "host/core/files/Leftovers.h"
#include "host/core/files/PartFile.h"
#include "host/core/files/PartName.h"
#include "host/movie/LibavMovieWriters.h"
#include "tests/unit/host/movie/DecodedMovie.h"
#include "tests/unit/host/movie/TestFolder.h"
#include "tests/unit/host/movie/TestMovie.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <utility>

namespace corvane::movie_test {
namespace {

using testing::ElementsAre;

struct Size {
    int width;
    int height;
    int frames;
};

class MovieSize : public testing::TestWithParam<Size> {};

TEST_P(MovieSize, comesBackWithAllPictures) {
    const auto [width, height, frames] = GetParam();
    const TestFolder folder;
    const auto originals =
        writeMovingMovie(movieRequest(folder.path("movie.mp4"), width, height), frames);
    const DecodedMovie movie(folder.path("movie.mp4"));
    EXPECT_EQ(movie.width, width + width % 2);
    EXPECT_EQ(movie.height, height + height % 2);
    EXPECT_EQ(movie.frames, frames);
    EXPECT_EQ(movie.framesSaid, frames);
    EXPECT_GE(lowestPsnr(movie, originals), 30.0);
}

INSTANTIATE_TEST_SUITE_P(Sizes, MovieSize,
                         testing::Values(Size{320, 240, 70}, Size{301, 201, 12}, Size{300, 201, 4},
                                         Size{301, 200, 4}, Size{16, 16, 8}, Size{4, 4, 8},
                                         Size{4, 3, 3}, Size{2, 2, 3}, Size{1, 1, 3},
                                         Size{1920, 1080, 8}, Size{4096, 64, 3}, Size{64, 4096, 3},
                                         Size{16384, 32, 2}, Size{16383, 32, 1}),
                         [](const auto& test) {
                             return std::to_string(test.param.width) + "x" +
                                    std::to_string(test.param.height);
                         });

struct Speed {
    double framesPerSecond;
    long numerator;
    long denominator;
};

class MovieSpeed : public testing::TestWithParam<Speed> {};

TEST_P(MovieSpeed, isKeptExactly) {
    const Speed& speed = GetParam();
    const int frames = 7;
    const TestFolder folder;
    const auto originals = writeMovingMovie(
        movieRequest(folder.path("movie.mp4"), 64, 48, speed.framesPerSecond), frames);
    const DecodedMovie movie(folder.path("movie.mp4"));
    EXPECT_EQ(movie.rateNumerator, speed.numerator);
    EXPECT_EQ(movie.rateDenominator, speed.denominator);
    EXPECT_EQ(movie.frames, frames);
    EXPECT_EQ(movie.framesSaid, frames);
    EXPECT_DOUBLE_EQ(movie.start, 0.0);
    // The last picture is shown as long as the others.
    EXPECT_NEAR(movie.duration, frames / speed.framesPerSecond, 1e-6 + 1e-9 * movie.duration);
    EXPECT_GE(lowestPsnr(movie, originals), 30.0);
}

INSTANTIATE_TEST_SUITE_P(Speeds, MovieSpeed,
                         testing::Values(Speed{0.001, 1, 1000}, Speed{0.5, 1, 2}, Speed{1, 1, 1},
                                         Speed{23.976, 2997, 125}, Speed{29.97, 2997, 100},
                                         Speed{30, 30, 1}, Speed{59.94, 2997, 50}, Speed{60, 60, 1},
                                         Speed{199.999, 199999, 1000}, Speed{200, 200, 1}),
                         [](const auto& test) {
                             return std::to_string(test.param.numerator) + "per" +
                                    std::to_string(test.param.denominator);
                         });

TEST(Mpeg4Movie, isWhatCommonPlayersTake) {
    const TestFolder folder;
    writeMovingMovie(movieRequest(folder.path("movie.mp4"), 64, 48), 3);
    const DecodedMovie movie(folder.path("movie.mp4"));
    EXPECT_EQ(movie.codec, "h264");
    EXPECT_EQ(movie.profile, "High");
    EXPECT_EQ(movie.pixelFormat, "yuv420p");
    EXPECT_EQ(movie.colors, "tv bt709 bt709 bt709");
}

TEST(Mpeg4Movie, holdsOnePicture) {
    const TestFolder folder;
    const auto originals = writeMovingMovie(movieRequest(folder.path("movie.mp4"), 64, 48, 25), 1);
    const DecodedMovie movie(folder.path("movie.mp4"));
    EXPECT_EQ(movie.frames, 1);
    EXPECT_NEAR(movie.duration, 0.04, 1e-6);
    EXPECT_GE(lowestPsnr(movie, originals), 30.0);
}

TEST(Mpeg4Movie, keepsTheOrderOfPictures) {
    const TestFolder folder;
    const auto originals = writeMovingMovie(movieRequest(folder.path("movie.mp4"), 128, 96), 40);
    const auto pictures = DecodedMovie(folder.path("movie.mp4")).pictures();
    ASSERT_EQ(pictures.size(), originals.size());
    for (std::size_t n = 1; n < originals.size(); ++n) {
        EXPECT_GT(psnr(pictures[n], originals[n]), psnr(pictures[n], originals[n - 1]) + 3.0);
    }
}

TEST(Mpeg4Movie, isNoLeftOverBetweenItsEndAndItsName) {
    const TestFolder folder;
    const std::string path = folder.path("movie.mp4");
    host::PartFile part(path);
    movie::LibavMovieWriters writers;
    const auto writer = writers.open(movieRequest(part.path(), 64, 48));
    writer->add(movingPicture(64, 48, 0));
    writer->finish();
    EXPECT_THAT(host::removeLeftovers(path), testing::IsEmpty());
    part.commit();
    EXPECT_THAT(folder.names(), ElementsAre("movie.mp4"));
    EXPECT_EQ(DecodedMovie(path).frames, 1);
}

TEST(Mpeg4Movie, givesTheSamePicturesOneByOne) {
    const TestFolder folder;
    writeMovingMovie(movieRequest(folder.path("movie.mp4"), 64, 48), 5);
    const DecodedMovie movie(folder.path("movie.mp4"));
    const auto pictures = movie.pictures();
    for (long n = 0; n < 5; ++n) {
        EXPECT_EQ(movie.picture(n), pictures[static_cast<std::size_t>(n)]);
    }
}

std::string textOf(const Color& color) {
    return "r" + std::to_string(color[0]) + "g" + std::to_string(color[1]) + "b" +
           std::to_string(color[2]);
}

/// Strong colours come back within a few levels, whatever matrix a player would have guessed for
/// the size: large movies and small ones are guessed at differently.
class MovieColor : public testing::TestWithParam<Color> {};

TEST_P(MovieColor, comesBack) {
    const Color& color = GetParam();
    const TestFolder folder;
    for (const auto& [width, height] : {std::pair(160, 120), std::pair(1280, 720)}) {
        movie::LibavMovieWriters writers;
        const auto writer = writers.open(movieRequest(folder.path("movie.mp4"), width, height));
        writer->add(uniformPicture(width, height, color));
        writer->finish();
        const auto shown =
            meanColor(DecodedMovie(folder.path("movie.mp4")).picture(0), 0, 0, width, height);
        for (std::size_t i = 0; i < 3; ++i) {
            EXPECT_NEAR(shown[i], color[i], 3.0) << "channel " << i << ", width " << width;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Colors, MovieColor,
                         testing::Values(Color{255, 0, 0}, Color{0, 255, 0}, Color{0, 0, 255},
                                         Color{255, 255, 0}, Color{0, 255, 255}, Color{255, 0, 255},
                                         Color{255, 255, 255}, Color{0, 0, 0}, Color{128, 128, 128},
                                         Color{200, 100, 50}),
                         [](const auto& test) { return textOf(test.param); });

TEST(Mpeg4Movie, repeatsTheLastRowAndColumnOfOddSizes) {
    const TestFolder folder;
    host::Picture picture = uniformPicture(33, 31, {40, 80, 160});
    for (int y = 0; y < 31; ++y) { // the last columns, wide enough to own their colours
        std::fill_n(picture.rgba.begin() + (y * 33 + 25) * 4, 8 * 4, std::uint8_t{255});
    }
    movie::LibavMovieWriters writers;
    const auto writer = writers.open(movieRequest(folder.path("movie.mp4"), 33, 31));
    writer->add(picture);
    writer->finish();
    const host::Picture shown = DecodedMovie(folder.path("movie.mp4")).picture(0);
    EXPECT_EQ(shown.width, 34);
    EXPECT_EQ(shown.height, 32);
    for (const double level : meanColor(shown, 33, 0, 1, 32)) {
        EXPECT_NEAR(level, 255.0, 6.0);
    }
    const auto bottom = meanColor(shown, 0, 31, 20, 1);
    EXPECT_NEAR(bottom[0], 40.0, 6.0);
    EXPECT_NEAR(bottom[1], 80.0, 6.0);
    EXPECT_NEAR(bottom[2], 160.0, 6.0);
}

TEST(Mpeg4Movie, hasItsIndexInFrontAndLeavesNoOtherFile) {
    const TestFolder folder;
    writeMovingMovie(movieRequest(folder.path("movie.mp4"), 64, 48), 70);
    EXPECT_EQ(topLevelBoxes(folder.path("movie.mp4")), "ftyp moov free mdat");
    EXPECT_THAT(folder.names(), ElementsAre("movie.mp4"));
}

TEST(Mpeg4Movie, staysAsItWasWrittenWhenItCannotBeRearranged) {
    const TestFolder folder;
    // All names that the file in the making may have are taken.
    constexpr int mostNumbers = 1000; // that are tried
    const host::PartName name("movie.mp4", 255);
    for (int number = 1; number <= mostNumbers; ++number) {
        std::filesystem::create_directory(folder.path(name.numbered(number)));
    }
    const auto originals = writeMovingMovie(movieRequest(folder.path("movie.mp4"), 64, 48), 70);
    EXPECT_EQ(folder.names().size(), mostNumbers + 1U);
    EXPECT_THAT(topLevelBoxes(folder.path("movie.mp4")), testing::HasSubstr("moof"));
    const DecodedMovie movie(folder.path("movie.mp4"));
    EXPECT_EQ(movie.frames, 70);
    EXPECT_DOUBLE_EQ(movie.start, 0.0);
    EXPECT_NEAR(movie.duration, 70 / 30.0, 1e-5);
    EXPECT_GE(lowestPsnr(movie, originals), 30.0);
}

TEST(Mpeg4Movie, replacesWhatStandsAtItsPath) {
    const TestFolder folder;
    writeMovingMovie(movieRequest(folder.path("movie.mp4"), 320, 240), 20);
    writeMovingMovie(movieRequest(folder.path("movie.mp4"), 64, 48), 2);
    EXPECT_EQ(DecodedMovie(folder.path("movie.mp4")).frames, 2);
}

TEST(Mpeg4Movie, takesAnyFileName) {
    const TestFolder folder;
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(folder.folder());
    for (const std::string name :
         {"flight:1.mp4", "%03d 'a' \"b\".mp4", "no-extension", "-x.mp4"}) {
        writeMovingMovie(movieRequest(name, 32, 32), 2);
        EXPECT_EQ(DecodedMovie(name).frames, 2) << name;
    }
    std::filesystem::current_path(before);
}

} // namespace
} // namespace corvane::movie_test
