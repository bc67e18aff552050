// Pictures of up to 256 colours beside those that another program makes.
#include "host/movie/swf/IndexedPicture.h"

#include "tests/unit/host/movie/DecodedMovie.h"
#include "tests/unit/host/movie/TestFolder.h"
#include "tests/unit/host/movie/swf/ShownPicture.h"

#include <gtest/gtest.h>

namespace corvane::movie_test {
namespace {

TEST(IndexedPictureFiles, isAsGoodAsWithThePaletteOfAnotherProgram) {
    const TestFolder folder;
    host::MovieRequest request = movieRequest(folder.path("movie.rm"), 640, 480);
    request.format = ExportFormat_RasterMetafile; // lossless
    const auto originals = writeMovingMovie(request, 2);
    const DecodedMovie movie(request.path);
    for (long n = 0; n < 2; ++n) {
        const host::Picture& picture = originals[static_cast<std::size_t>(n)];
        const double other = psnr(movie.pictureIn256Colors(n), picture);
        EXPECT_GT(psnr(shown(movie::indexed(picture), 640, 480), picture), other - 0.5);
    }
}

} // namespace
} // namespace corvane::movie_test
