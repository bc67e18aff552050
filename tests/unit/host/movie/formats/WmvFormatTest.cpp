// What is in WMV movies.
#include "host/movie/formats/WmvFormat.h"

#include "tests/unit/host/movie/DecodedMovie.h"
#include "tests/unit/host/movie/TestFolder.h"
#include "tests/unit/host/movie/TestMovie.h"

#include <gtest/gtest.h>

namespace corvane::movie_test {
namespace {

TEST(WmvFormat, isWhatPlayersTake) {
    const TestFolder folder;
    host::MovieRequest request = movieRequest(folder.path("movie.wmv"), 64, 48, 25);
    request.format = ExportFormat_WMV;
    writeMovingMovie(request, 50);
    const DecodedMovie movie(request.path);
    EXPECT_EQ(movie.codec, "wmv2");
    EXPECT_EQ(movie.rateNumerator, 25);
    EXPECT_EQ(movie.rateDenominator, 1);
    EXPECT_NEAR(movie.duration, 2.0, 0.1);
}

} // namespace
} // namespace corvane::movie_test
