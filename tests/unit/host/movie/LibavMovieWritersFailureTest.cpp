// What goes wrong while a movie is written.
#include "host/core/base/HostError.h"
#include "host/core/files/PartFile.h"
#include "host/movie/LibavMovieWriters.h"
#include "tests/unit/host/movie/MovieKind.h"
#include "tests/unit/host/movie/TestFolder.h"
#include "tests/unit/host/movie/TestMovie.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/resource.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <thread>

namespace corvane::movie_test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::ThrowsMessage;

/// Files of this process cannot grow beyond the size from now on: a disk that fills up.
void limitFileSize(rlim_t bytes) {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{bytes, bytes};
    setrlimit(RLIMIT_FSIZE, &limit);
}

/// Ends the process: with 0 when the movie's writer told of a failure, which goes to standard
/// error with the number of pictures that were taken.
[[noreturn]] void writeNoisyMovie(const std::string& path, int frames) {
    int taken = 0;
    try {
        movie::LibavMovieWriters writers;
        const auto writer = writers.open(movieRequest(path, 320, 240));
        for (; taken < frames; ++taken) {
            writer->add(noisyPicture(320, 240, taken));
        }
        std::cerr << "all were taken; ";
        writer->finish();
    } catch (const host::HostError& error) {
        std::cerr << error.what() << (taken < frames ? " stopped early" : "") << std::endl;
        std::_Exit(0);
    }
    std::_Exit(1);
}

TEST(FullDiskDeathTest, stopsTheProducer) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const TestFolder folder;
    EXPECT_EXIT(
        {
            limitFileSize(1'000'000);
            writeNoisyMovie(folder.path("movie.mp4"), 100'000);
        },
        testing::ExitedWithCode(0), "File too large while writing pictures.*stopped early");
}

TEST(FullDiskDeathTest, isNoticedAtTheEnd) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const TestFolder folder;
    EXPECT_EXIT(
        {
            limitFileSize(20'000); // the pictures are all in the last fragment, at the end
            writeNoisyMovie(folder.path("movie.mp4"), 6);
        },
        testing::ExitedWithCode(0), "all were taken; .*File too large while");
}

TEST(FullDiskDeathTest, isNoticedWithASinglePicture) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const TestFolder folder;
    EXPECT_EXIT(
        {
            limitFileSize(2'000);
            writeNoisyMovie(folder.path("movie.mp4"), 1);
        },
        testing::ExitedWithCode(0), "all were taken; .*File too large while");
}

/// As the exporter does it: the part goes when the writer fails.
void writePartUntilItFails(const MovieKind& kind, const std::string& path, int frames) {
    const host::PartFile part(path);
    movie::LibavMovieWriters writers;
    const auto writer = writers.open(movieRequest(kind, part.path(), 320, 240));
    for (int n = 0; n < frames; ++n) {
        writer->add(noisyPicture(320, 240, n));
    }
    writer->finish();
}

[[noreturn]] void exitWithTheFailureOf(const MovieKind& kind, const std::string& path, rlim_t limit,
                                       int frames) {
    limitFileSize(limit);
    try {
        writePartUntilItFails(kind, path, frames);
    } catch (const host::HostError& error) {
        std::cerr << error.what() << std::endl;
        std::_Exit(0);
    }
    std::_Exit(1);
}

class FullDiskOfAnyKindDeathTest : public testing::TestWithParam<MovieKind> {
protected:
    FullDiskOfAnyKindDeathTest() {
        GTEST_FLAG_SET(death_test_style, "threadsafe");
        std::ofstream(m_path) << "older";
    }
    void expectFailure(rlim_t limit, int frames) {
        EXPECT_EXIT(exitWithTheFailureOf(GetParam(), m_path, limit, frames),
                    testing::ExitedWithCode(0), "File too large while");
        EXPECT_THAT(m_folder.names(), ElementsAre("movie"));
        std::string content;
        std::ifstream(m_path) >> content;
        EXPECT_EQ(content, "older");
    }

    TestFolder m_folder;
    std::string m_path = m_folder.path("movie");
};

TEST_P(FullDiskOfAnyKindDeathTest, isToldAndLeavesTheMovieThatWasThere) {
    expectFailure(1'000'000, 100'000);
}

TEST_P(FullDiskOfAnyKindDeathTest, isNoticedWithASinglePicture) {
    expectFailure(3'000, 1);
}

INSTANTIATE_TEST_SUITE_P(Kinds, FullDiskOfAnyKindDeathTest, testing::ValuesIn(movieKinds()),
                         nameOfKind);

class FailureOfAnyKind : public testing::TestWithParam<MovieKind> {
protected:
    std::unique_ptr<host::MovieWriter> opened() {
        movie::LibavMovieWriters writers;
        return writers.open(movieRequest(GetParam(), m_folder.path("movie"), 64, 48));
    }

    TestFolder m_folder;
};

TEST_P(FailureOfAnyKind, aPictureOfAnotherSizeIsReported) {
    const auto writer = opened();
    writer->add(movingPicture(64, 48, 0));
    writer->add(movingPicture(48, 64, 1));
    EXPECT_THAT([&] { writer->finish(); },
                ThrowsMessage<host::HostError>(HasSubstr("48 x 64 pixels came into a movie of "
                                                         "64 x 48")));
}

TEST_P(FailureOfAnyKind, aPictureWithoutAllItsBytesIsReported) {
    const auto writer = opened();
    host::Picture picture = movingPicture(64, 48, 0);
    picture.rgba.pop_back();
    writer->add(picture);
    EXPECT_THROW(writer->finish(), host::HostError);
}

TEST_P(FailureOfAnyKind, aMovieWithoutPicturesIsReported) {
    const auto writer = opened();
    EXPECT_THAT([&] { writer->finish(); },
                ThrowsMessage<host::HostError>(HasSubstr("it has no pictures")));
}

INSTANTIATE_TEST_SUITE_P(Kinds, FailureOfAnyKind, testing::ValuesIn(movieKinds()), nameOfKind);

long threadsOfThisProcess() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/task"),
                         std::filesystem::directory_iterator());
}

/// A thread that was joined leaves the list of the process an instant later.
bool threadsComeDownTo(long wanted) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(120);
    while (threadsOfThisProcess() > wanted) {
        if (std::chrono::steady_clock::now() > deadline) {
            return false;
        }
        std::this_thread::yield();
    }
    return true;
}

TEST(Failure, destroyingAnUnfinishedMovieStopsItsThreadsAndLeavesItsFile) {
    const TestFolder folder;
    const long before = threadsOfThisProcess();
    movie::LibavMovieWriters writers;
    for (int frames = 0; frames < 30; frames += 6) {
        auto writer = writers.open(movieRequest(folder.path("movie.mp4"), 320, 240));
        for (int n = 0; n < frames; ++n) {
            writer->add(movingPicture(320, 240, n));
        }
        writer.reset();
        EXPECT_TRUE(threadsComeDownTo(before));
        EXPECT_THAT(folder.names(), ElementsAre("movie.mp4"));
    }
}

} // namespace
} // namespace corvane::movie_test
