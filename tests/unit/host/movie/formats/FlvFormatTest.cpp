// What is in FLV movies.
#include "host/movie/formats/FlvFormat.h"

#include "host/movie/libav/LibavLog.h"
#include "host/movie/libav/MovieFile.h"
#include "tests/unit/host/movie/DecodedMovie.h"
#include "tests/unit/host/movie/TestFolder.h"
#include "tests/unit/host/movie/TestMovie.h"

#include <gtest/gtest.h>

namespace corvane::movie_test {
namespace {

TEST(FlvFormat, isWhatPlayersTake) {
    const TestFolder folder;
    host::MovieRequest request = movieRequest(folder.path("movie.flv"), 64, 48, 29.97);
    request.format = ExportFormat_FlashFLV;
    writeMovingMovie(request, 60);
    const DecodedMovie movie(request.path);
    EXPECT_EQ(movie.codec, "h264");
    EXPECT_EQ(movie.profile, "High");
    EXPECT_EQ(movie.pixelFormat, "yuv420p");
    EXPECT_EQ(movie.colors, "tv bt709 bt709 bt709");
    EXPECT_NEAR(static_cast<double>(movie.rateNumerator) /
                    static_cast<double>(movie.rateDenominator),
                29.97, 0.01);
}

TEST(FlvFormat, hasACodecOfItsOwnWhereLibavHasNoX264) {
    movie::captureLibavLog();
    const TestFolder folder;
    const host::MovieRequest request = movieRequest(folder.path("movie.flv"), 321, 240, 25);
    movie::VideoSettings settings = movie::FlvFormat().settings(request);
    settings.encoders.front().encoder = "an encoder that nobody has";
    movie::MovieFile file(request, settings);
    const auto originals = movingPictures(321, 240, 30);
    for (const host::Picture& picture : originals) {
        file.write(picture);
    }
    file.finish();
    const DecodedMovie movie(request.path);
    EXPECT_EQ(movie.codec, "flv1");
    EXPECT_GE(lowestPsnr(movie, originals), 30.0);
}

} // namespace
} // namespace corvane::movie_test
