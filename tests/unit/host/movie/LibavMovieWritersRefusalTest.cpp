// Movies that cannot be written are refused before the first picture.
#include "host/movie/LibavMovieWriters.h"

#include "host/core/base/HostError.h"
#include "tests/unit/host/movie/MovieKind.h"
#include "tests/unit/host/movie/TestFolder.h"
#include "tests/unit/host/movie/TestMovie.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <limits>
#include <utility>
#include <vector>

namespace corvane::movie_test {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::ThrowsMessage;

class RefusedMovie : public testing::Test {
protected:
    void expectRefusal(const host::MovieRequest& request,
                       const testing::Matcher<const std::string&>& message) {
        movie::LibavMovieWriters writers;
        EXPECT_THAT([&] { writers.open(request); }, ThrowsMessage<host::HostError>(message));
        EXPECT_THAT(m_folder.names(), IsEmpty());
    }

    host::MovieRequest request() const { return movieRequest(m_folder.path("movie.mp4"), 64, 48); }

    TestFolder m_folder;
};

TEST_F(RefusedMovie, ofAFormatThatHoldsNoMovies) {
    host::MovieRequest other = request();
    other.format = static_cast<ExportFormat_e>(2);
    expectRefusal(other, HasSubstr("format 2 holds no movies"));
}

TEST_F(RefusedMovie, ofAFlashMovieSlowerThanItsClock) {
    host::MovieRequest other = request();
    other.format = ExportFormat_FlashSWF;
    other.framesPerSecond = 0.0019;
    expectRefusal(other, HasSubstr("1/256"));
}

class RefusedMovieKind : public RefusedMovie, public testing::WithParamInterface<MovieKind> {
protected:
    host::MovieRequest requestOf(int width, int height) const {
        return movieRequest(GetParam(), m_folder.path("movie"), width, height);
    }
};

TEST_P(RefusedMovieKind, ofAnImpossibleSize) {
    for (const auto& [width, height] : {std::pair(0, 48), std::pair(64, 0), std::pair(-1, 48),
                                        std::pair(64, -48), std::pair(2147483647, 2147483647)}) {
        expectRefusal(requestOf(width, height),
                      HasSubstr(std::to_string(width) + " x " + std::to_string(height)));
    }
}

using RefusedMovieKindWithLargestSide = RefusedMovieKind;

TEST_P(RefusedMovieKindWithLargestSide, ofASizeAboveIt) {
    const int largest = GetParam().largestSide;
    for (const auto& [width, height] : {std::pair(largest + 1, 48), std::pair(64, largest + 1)}) {
        expectRefusal(requestOf(width, height),
                      AllOf(HasSubstr(std::to_string(width) + " x " + std::to_string(height)),
                            HasSubstr("1 to " + std::to_string(largest))));
    }
}

TEST_P(RefusedMovieKind, withMorePixelsThanCanBeHandled) {
    expectRefusal(requestOf(16384, 16384), HasSubstr("260 million"));
}

TEST_P(RefusedMovieKind, inAFolderThatIsNotThere) {
    host::MovieRequest other = requestOf(64, 48);
    other.path = m_folder.path("missing/movie");
    expectRefusal(other, AllOf(HasSubstr(other.path), HasSubstr("No such file or directory")));
}

std::vector<MovieKind> kindsWithLargestSide() {
    std::vector<MovieKind> kinds;
    std::copy_if(
        movieKinds().begin(), movieKinds().end(), std::back_inserter(kinds),
        [](const MovieKind& kind) { return kind.largestSide < std::numeric_limits<int>::max(); });
    return kinds;
}

INSTANTIATE_TEST_SUITE_P(Kinds, RefusedMovieKind, testing::ValuesIn(movieKinds()), nameOfKind);
INSTANTIATE_TEST_SUITE_P(Kinds, RefusedMovieKindWithLargestSide,
                         testing::ValuesIn(kindsWithLargestSide()), nameOfKind);

TEST_F(RefusedMovie, ofAnImpossibleSpeed) {
    for (const double speed :
         {0.0, -30.0, 0.0009, 200.001, 1e300, std::numeric_limits<double>::infinity(),
          std::numeric_limits<double>::quiet_NaN()}) {
        host::MovieRequest other = request();
        other.framesPerSecond = speed;
        expectRefusal(other, HasSubstr("choose 0.001 to 200"));
    }
}

TEST_F(RefusedMovie, withTheNameOfAFolder) {
    host::MovieRequest other = request();
    other.path = m_folder.folder().string();
    expectRefusal(other, AllOf(HasSubstr(other.path), HasSubstr("Is a directory")));
}

TEST_F(RefusedMovie, onAFullDisk) {
    host::MovieRequest other = request();
    other.path = "/dev/full"; // every write fails for want of space
    expectRefusal(other, HasSubstr("No space left on device"));
}

} // namespace
} // namespace corvane::movie_test
