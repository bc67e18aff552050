// What is on disk while a movie is being written.
#include "host/movie/LibavMovieWriters.h"
#include "tests/unit/movie/DecodedMovie.h"
#include "tests/unit/movie/TestFolder.h"
#include "tests/unit/movie/TestMovie.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>

namespace corvane::movie_test {
namespace {

constexpr int width = 320;
constexpr int height = 240;

/// Ends the process in the middle of a movie of 30 pictures per second.
[[noreturn]] void writeUntilKilled(const std::string& path, int frames) {
    movie::LibavMovieWriters writers;
    const auto writer = writers.open(movieRequest(path, width, height));
    for (int n = 0; n < frames; ++n)
        writer->add(movingPicture(width, height, n));
    std::raise(SIGKILL);
    std::abort();
}

TEST(KilledWriterDeathTest, leavesAMovieOfAllButTheLastSeconds) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const TestFolder folder;
    EXPECT_EXIT(writeUntilKilled(folder.path("movie.mp4"), 120), testing::KilledBySignal(SIGKILL),
                "");
    const DecodedMovie movie(folder.path("movie.mp4"));
    EXPECT_GE(movie.frames, 60); // the rest waited, or was in the fragment that was being made
    EXPECT_LT(movie.frames, 120);
    EXPECT_EQ(movie.width, width);
    EXPECT_EQ(movie.rateNumerator, 30);
    EXPECT_GE(lowestPsnr(movie, movingPictures(width, height, static_cast<int>(movie.frames))),
              30.0);
}

} // namespace
} // namespace corvane::movie_test
