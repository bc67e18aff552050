// What is in AVI movies.
#include "host/movie/formats/AviFormat.h"

#include "tests/unit/host/movie/DecodedMovie.h"
#include "tests/unit/host/movie/TestFolder.h"
#include "tests/unit/host/movie/TestMovie.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

namespace corvane::movie_test {
namespace {

class AviFormat : public testing::Test {
protected:
    DecodedMovie written(AVICompression_e compression, int width, int height, int frames) const {
        host::MovieRequest request = movieRequest(path(), width, height, 29.97);
        request.format = ExportFormat_AVI;
        request.aviCompression = compression;
        writeMovingMovie(request, frames);
        return DecodedMovie(path());
    }
    std::string path() const { return m_folder.path("movie.avi"); }
    std::string bytes() const {
        std::ifstream file(path(), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    TestFolder m_folder;
};

TEST_F(AviFormat, preservesLinesWithALosslessCodec) {
    const DecodedMovie movie = written(AVICompression_LinePreserving, 64, 48, 40);
    EXPECT_EQ(movie.codec, "ffv1");
    EXPECT_EQ(movie.pixelFormat, "bgr0");
    EXPECT_EQ(movie.framesSaid, 40);
    EXPECT_EQ(movie.rateNumerator, 2997);
    EXPECT_EQ(movie.rateDenominator, 100);
}

TEST_F(AviFormat, preservesColorsWithoutSharingThemBetweenPixels) {
    const DecodedMovie movie = written(AVICompression_ColorPreserving, 64, 48, 40);
    EXPECT_EQ(movie.codec, "mjpeg");
    EXPECT_EQ(movie.pixelFormat, "yuvj444p");
    EXPECT_EQ(movie.rateNumerator, 2997);
    EXPECT_EQ(movie.rateDenominator, 100);
}

/// A number of four bytes, the lowest first.
long numberAt(const std::string& bytes, std::size_t at) {
    unsigned long number = 0;
    for (std::size_t i = 4; i-- > 0;) {
        number = number * 256 + static_cast<unsigned char>(bytes.at(at + i));
    }
    return static_cast<std::int32_t>(number);
}

TEST_F(AviFormat, isUncompressedInTheLayoutOfBitmaps) {
    const DecodedMovie movie = written(AVICompression_LosslessUncompressed, 63, 48, 5);
    EXPECT_EQ(movie.codec, "rawvideo");
    EXPECT_EQ(movie.pixelFormat, "bgr24");
    EXPECT_EQ(movie.framesSaid, 5);
    const std::string file = bytes();
    const std::size_t format = file.find("strf") + 8; // a BITMAPINFOHEADER
    EXPECT_EQ(numberAt(file, format + 4), 63);
    EXPECT_EQ(numberAt(file, format + 8), 48) << "positive: from the lowest row up";
    EXPECT_EQ(numberAt(file, format + 12) >> 16, 24) << "bits";
    EXPECT_EQ(numberAt(file, format + 16), 0) << "no compression";
    const std::size_t picture = file.find("00d", file.find("movi"));
    EXPECT_EQ(numberAt(file, picture + 4), 192 * 48) << "rows of a multiple of four bytes";
}

TEST_F(AviFormat, isSmallerWithTheLosslessCodecThanUncompressed) {
    written(AVICompression_LosslessUncompressed, 320, 240, 5);
    const std::size_t uncompressed = bytes().size();
    written(AVICompression_LinePreserving, 320, 240, 5);
    EXPECT_LT(bytes().size() * 2, uncompressed);
}

} // namespace
} // namespace corvane::movie_test
