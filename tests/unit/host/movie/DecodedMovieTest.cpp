// The measuring tool itself.
#include "tests/unit/host/movie/DecodedMovie.h"
#include "tests/unit/host/movie/TestFolder.h"
#include "tests/unit/host/movie/TestMovie.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <stdexcept>

namespace corvane::movie_test {
namespace {

TEST(DecodedMovie, psnrFollowsItsDefinition) {
    const host::Picture black = uniformPicture(8, 4, {0, 0, 0});
    EXPECT_TRUE(std::isinf(psnr(black, black)));
    EXPECT_NEAR(psnr(black, uniformPicture(8, 4, {1, 1, 1})), 48.1308, 1e-4);
    EXPECT_NEAR(psnr(black, uniformPicture(8, 4, {255, 255, 255})), 0.0, 1e-9);
    EXPECT_THROW(psnr(black, uniformPicture(4, 8, {0, 0, 0})), std::runtime_error);
}

TEST(DecodedMovie, refusesWhatIsNoMovie) {
    const TestFolder folder;
    EXPECT_THROW(DecodedMovie(folder.path("missing.mp4")), std::runtime_error);
    std::ofstream(folder.path("text.mp4")) << "not a movie\n";
    EXPECT_THROW(DecodedMovie(folder.path("text.mp4")), std::runtime_error);
}

TEST(DecodedMovie, refusesAPictureThatIsNotThere) {
    const TestFolder folder;
    writeMovingMovie(movieRequest(folder.path("a.mp4"), 32, 32), 3);
    const DecodedMovie movie(folder.path("a.mp4"));
    EXPECT_EQ(movie.picture(2).width, 32);
    EXPECT_THROW(movie.picture(3), std::runtime_error);
}

} // namespace
} // namespace corvane::movie_test
