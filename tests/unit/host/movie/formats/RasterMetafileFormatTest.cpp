// What is in raster metafiles, read as docs/raster-metafile.md says.
#include "host/movie/formats/RasterMetafileFormat.h"

#include "tests/unit/host/movie/TestFolder.h"
#include "tests/unit/host/movie/TestMovie.h"

#include <gtest/gtest.h>

#include <fstream>
#include <stdexcept>

namespace corvane::movie_test {
namespace {

std::vector<host::Picture> picturesIn(const std::string& path) {
    std::vector<host::Picture> pictures;
    std::ifstream file(path, std::ios::binary);
    for (std::string magic; file >> magic;) {
        host::Picture picture;
        int largest = 0;
        file >> picture.width >> picture.height >> largest;
        if (magic != "P6" || largest != 255 || file.get() != '\n') {
            throw std::runtime_error("this is no raster metafile");
        }
        for (int pixel = 0; pixel < picture.width * picture.height; ++pixel) {
            for (int channel = 0; channel < 3; ++channel) {
                picture.rgba.push_back(static_cast<std::uint8_t>(file.get()));
            }
            picture.rgba.push_back(255);
        }
        if (!file) {
            throw std::runtime_error("the last picture is cut off");
        }
        pictures.push_back(std::move(picture));
    }
    return pictures;
}

TEST(RasterMetafile, holdsPicturesOneBehindTheOther) {
    const TestFolder folder;
    host::MovieRequest request = movieRequest(folder.path("movie.rm"), 37, 21);
    request.format = ExportFormat_RasterMetafile;
    const auto originals = writeMovingMovie(request, 5);
    EXPECT_EQ(picturesIn(request.path), originals);
}

TEST(RasterMetafile, isTheSameAtAnySpeed) {
    const TestFolder folder;
    std::vector<std::vector<host::Picture>> movies;
    for (const double speed : {0.001, 200.0}) {
        host::MovieRequest request = movieRequest(folder.path("movie.rm"), 20, 10, speed);
        request.format = ExportFormat_RasterMetafile;
        writeMovingMovie(request, 3);
        movies.push_back(picturesIn(request.path));
    }
    EXPECT_EQ(movies[0], movies[1]);
}

} // namespace
} // namespace corvane::movie_test
