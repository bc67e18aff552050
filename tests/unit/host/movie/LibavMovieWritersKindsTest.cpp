// What all kinds of movies have in common, decoded again by a program that is not ours.
#include "tests/unit/host/movie/MovieKind.h"

#include "host/movie/EncoderThread.h"
#include "host/movie/LibavMovieWriters.h"
#include "tests/unit/host/movie/DecodedMovie.h"
#include "tests/unit/host/movie/TestFolder.h"
#include "tests/unit/host/movie/TestMovie.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <limits>
#include <utility>

namespace corvane::movie_test {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class MovieOfAnyKind : public testing::TestWithParam<MovieKind> {
protected:
    int padded(int side, int step) const { return (side + step - 1) / step * step; }

    void expectSameMovie(int width, int height, int frames) const {
        SCOPED_TRACE(std::to_string(width) + " x " + std::to_string(height));
        const auto originals =
            writeMovingMovie(movieRequest(GetParam(), m_path, width, height), frames);
        const DecodedMovie movie(m_path);
        EXPECT_EQ(movie.width, padded(width, GetParam().widthStep));
        EXPECT_EQ(movie.height, padded(height, GetParam().heightStep));
        EXPECT_EQ(movie.frames, frames);
        const double quality = lowestPsnr(movie, originals);
        EXPECT_GE(quality, GetParam().isLossless ? std::numeric_limits<double>::infinity() : 30.0);
    }

    TestFolder m_folder;
    std::string m_path = m_folder.path("movie");
};

TEST_P(MovieOfAnyKind, comesBackWithAllPictures) {
    expectSameMovie(320, 240, 12);
    EXPECT_THAT(m_folder.names(), ElementsAre("movie"));
}

TEST_P(MovieOfAnyKind, comesBackInSmallAndOddSizes) {
    expectSameMovie(4, 3, 2);
    expectSameMovie(5, 4, 3);
    expectSameMovie(300, 225, 2);
    expectSameMovie(1281, 131, 2);
}

TEST_P(MovieOfAnyKind, comesBackInLargeSizes) {
    expectSameMovie(8192, 130, 1);
    expectSameMovie(std::min(32766, GetParam().largestSide), 16, 2);
    expectSameMovie(16, std::min(32766, GetParam().largestSide), 2);
}

TEST_P(MovieOfAnyKind, holdsOnePicture) {
    expectSameMovie(64, 48, 1);
}

TEST_P(MovieOfAnyKind, keepsTheOrderOfPictures) {
    const auto originals = writeMovingMovie(movieRequest(GetParam(), m_path, 128, 96), 40);
    const auto pictures = DecodedMovie(m_path).pictures();
    ASSERT_EQ(pictures.size(), originals.size());
    for (std::size_t n = 1; n < originals.size(); ++n) {
        EXPECT_GT(psnr(pictures[n], originals[n]), psnr(pictures[n], originals[n - 1]) + 3.0);
    }
}

TEST_P(MovieOfAnyKind, givesTheSamePicturesOneByOne) {
    writeMovingMovie(movieRequest(GetParam(), m_path, 64, 48), 4);
    const DecodedMovie movie(m_path);
    const auto pictures = movie.pictures();
    for (const long n : {3L, 1L}) {
        EXPECT_EQ(movie.picture(n), pictures[static_cast<std::size_t>(n)]);
    }
}

TEST_P(MovieOfAnyKind, keepsStrongColorsAtAnyHeight) {
    const std::vector<Color> colors{{255, 0, 0}, {0, 255, 0}, {0, 0, 255}, {200, 100, 50}};
    for (const int height : {120, 720}) {
        movie::LibavMovieWriters writers;
        const auto writer = writers.open(movieRequest(GetParam(), m_path, 64, height));
        for (const Color& color : colors) {
            writer->add(uniformPicture(64, height, color));
        }
        writer->finish();
        const auto pictures = DecodedMovie(m_path).pictures();
        ASSERT_EQ(pictures.size(), colors.size());
        for (std::size_t n = 0; n < colors.size(); ++n) {
            const auto shown = meanColor(pictures[n], 0, 0, 64, height);
            for (std::size_t i = 0; i < 3; ++i) {
                EXPECT_NEAR(shown[i], colors[n][i], 4.0) << "picture " << n << ", " << height;
            }
        }
    }
}

TEST_P(MovieOfAnyKind, saysOnceThatItsPicturesArePadded) {
    std::vector<std::string> notes;
    movie::LibavMovieWriters writers([&](const std::string& note) { notes.push_back(note); });
    writers.open(movieRequest(GetParam(), m_path, 64, 48));
    EXPECT_THAT(notes, IsEmpty());
    writers.open(movieRequest(GetParam(), m_path, 301, 200));
    if (GetParam().heightStep == 2) {
        EXPECT_THAT(notes, ElementsAre(AllOf(HasSubstr("302 x 200"), HasSubstr("301 x 200"))));
    } else {
        EXPECT_THAT(notes, IsEmpty());
    }
}

TEST_P(MovieOfAnyKind, replacesWhatStandsAtItsPath) {
    writeMovingMovie(movieRequest(GetParam(), m_path, 320, 240), 20);
    writeMovingMovie(movieRequest(GetParam(), m_path, 64, 48), 2);
    EXPECT_EQ(DecodedMovie(m_path).frames, 2);
}

TEST_P(MovieOfAnyKind, isWrittenThroughAQueueThatDoesNotGrow) {
    constexpr int width = 400;
    constexpr int height = 300;
    const host::Picture picture = noisyPicture(width, height, 0); // slow to encode, fast to add
    movie::LibavMovieWriters writers;
    const auto writer = writers.open(movieRequest(GetParam(), m_path, width, height));
    const auto* queue = dynamic_cast<const movie::EncoderThread*>(writer.get());
    ASSERT_NE(queue, nullptr);
    std::size_t most = 0;
    for (int n = 0; n < 25; ++n) {
        writer->add(picture);
        most = std::max(most, queue->waiting());
    }
    writer->finish();
    EXPECT_GE(most, 1U) << "no encoder is that fast";
    EXPECT_LE(most, movie::mostWaitingPictures(width, height));
    EXPECT_EQ(DecodedMovie(m_path).frames, 25);
}

INSTANTIATE_TEST_SUITE_P(Kinds, MovieOfAnyKind, testing::ValuesIn(movieKinds()), nameOfKind);

/// How far the time of a picture may be from the exact one: by the file's own clock.
double toleranceOf(const MovieKind& kind, double framesPerSecond, double time) {
    constexpr double digitsOfFfprobe = 1e-6;
    if (kind.format == ExportFormat_FlashSWF) { // a frame rate in steps of 1/256
        return time * (1.0 / 512.0) / (framesPerSecond - 1.0 / 512.0) + digitsOfFfprobe;
    }
    if (kind.format == ExportFormat_FlashFLV || kind.format == ExportFormat_WMV) {
        return 0.0005 + digitsOfFfprobe;
    }
    return 1e-9 * time + digitsOfFfprobe;
}

class MovieSpeedOfAnyKind : public testing::TestWithParam<MovieKind> {
protected:
    void expectTimes(double framesPerSecond) const {
        SCOPED_TRACE(framesPerSecond);
        const int frames = 7;
        const TestFolder folder;
        const std::string path = folder.path("movie");
        writeMovingMovie(movieRequest(GetParam(), path, 64, 48, framesPerSecond), frames);
        const auto times = DecodedMovie(path).times();
        ASSERT_EQ(times.size(), static_cast<std::size_t>(frames));
        for (std::size_t n = 0; n < times.size(); ++n) {
            const double exact = static_cast<double>(n) / framesPerSecond;
            EXPECT_NEAR(times[n], exact, toleranceOf(GetParam(), framesPerSecond, exact));
        }
    }
};

TEST_P(MovieSpeedOfAnyKind, isKept) {
    for (const double speed : {0.5, 23.976, 29.97, 30.0, 199.999, 200.0}) {
        expectTimes(speed);
    }
}

TEST_P(MovieSpeedOfAnyKind, isKeptWhereItIsSlowest) {
    // The slowest one of all is below what the frame rate of SWF files can say.
    expectTimes(GetParam().format == ExportFormat_FlashSWF ? 0.004 : 0.001);
}

std::vector<MovieKind> kindsWithSpeed() {
    std::vector<MovieKind> kinds;
    std::copy_if(movieKinds().begin(), movieKinds().end(), std::back_inserter(kinds),
                 [](const MovieKind& kind) { return kind.format != ExportFormat_RasterMetafile; });
    return kinds;
}

INSTANTIATE_TEST_SUITE_P(Kinds, MovieSpeedOfAnyKind, testing::ValuesIn(kindsWithSpeed()),
                         nameOfKind);

} // namespace
} // namespace corvane::movie_test
