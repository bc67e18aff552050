// What is on disk while a movie is being written.
#include "host/core/files/PartFile.h"
#include "host/core/files/PartName.h"
#include "host/movie/LibavMovieWriters.h"
#include "tests/unit/host/movie/DecodedMovie.h"
#include "tests/unit/host/movie/MovieKind.h"
#include "tests/unit/host/movie/TestFolder.h"
#include "tests/unit/host/movie/TestMovie.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <fstream>

namespace corvane::movie_test {
namespace {

using testing::ElementsAre;
using testing::Truly;

constexpr int width = 320;
constexpr int height = 240;

/// Ends the process in the middle of a movie of 30 pictures per second.
[[noreturn]] void writeUntilKilled(const host::MovieRequest& request, int frames) {
    movie::LibavMovieWriters writers;
    const auto writer = writers.open(request);
    for (int n = 0; n < frames; ++n) {
        writer->add(movingPicture(width, height, n));
    }
    std::raise(SIGKILL);
    std::abort();
}

TEST(KilledWriterDeathTest, leavesAMovieOfAllButTheLastSeconds) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const TestFolder folder;
    EXPECT_EXIT(writeUntilKilled(movieRequest(folder.path("movie.mp4"), width, height), 120),
                testing::KilledBySignal(SIGKILL), "");
    const DecodedMovie movie(folder.path("movie.mp4"));
    EXPECT_GE(movie.frames, 60); // the rest waited, or was in the fragment that was being made
    EXPECT_LT(movie.frames, 120);
    EXPECT_EQ(movie.width, width);
    EXPECT_EQ(movie.rateNumerator, 30);
    EXPECT_GE(lowestPsnr(movie, movingPictures(width, height, static_cast<int>(movie.frames))),
              30.0);
}

class KilledWriterOfAnyKindDeathTest : public testing::TestWithParam<MovieKind> {
protected:
    KilledWriterOfAnyKindDeathTest() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }

    TestFolder m_folder;
};

TEST_P(KilledWriterOfAnyKindDeathTest, leavesWhatWasWrittenAndTheMovieThatWasThere) {
    const std::string path = m_folder.path("movie");
    std::ofstream(path) << "older";
    EXPECT_EXIT(
        {
            const host::PartFile part(path);
            writeUntilKilled(movieRequest(GetParam(), part.path(), width, height, 10.0), 50);
        },
        testing::KilledBySignal(SIGKILL), "");
    ASSERT_THAT(m_folder.names(), ElementsAre("movie", Truly(host::isPartName)));
    std::string content;
    std::ifstream(path) >> content;
    EXPECT_EQ(content, "older");

    const DecodedMovie movie(m_folder.path(m_folder.names().back()), MovieEnd::CutOff);
    const auto pictures = movie.pictures();
    ASSERT_GE(pictures.size(), 20U);
    EXPECT_LE(pictures.size(), 50U);
    for (const int n : {0, 9, 19}) {
        const host::Picture original = movingPicture(width, height, n);
        EXPECT_GE(psnr(pictures[static_cast<std::size_t>(n)], original), 30.0) << n;
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, KilledWriterOfAnyKindDeathTest, testing::ValuesIn(movieKinds()),
                         nameOfKind);

} // namespace
} // namespace corvane::movie_test
