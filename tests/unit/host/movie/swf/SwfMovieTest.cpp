// What is in SWF movies.
#include "host/movie/swf/SwfMovie.h"

#include "host/core/base/HostError.h"
#include "host/movie/libav/LibavLog.h"
#include "tests/unit/host/movie/DecodedMovie.h"
#include "tests/unit/host/movie/TestFolder.h"
#include "tests/unit/host/movie/TestMovie.h"
#include "tests/unit/host/movie/swf/SwfReader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

namespace corvane::movie_test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::ThrowsMessage;

namespace tags {
constexpr unsigned end = 0;
constexpr unsigned showFrame = 1;
constexpr unsigned defineShape = 2;
constexpr unsigned backgroundColor = 9;
constexpr unsigned bitsLossless = 20;
constexpr unsigned bitsJpeg2 = 21;
constexpr unsigned placeObject2 = 26;
constexpr unsigned fileAttributes = 69;
} // namespace tags

class SwfMovie : public testing::Test {
protected:
    SwfMovie() { movie::captureLibavLog(); }

    host::MovieRequest request(FlashImageType_e type, int width, int height,
                               double speed = 30.0) const {
        host::MovieRequest request = movieRequest(m_folder.path("movie.swf"), width, height, speed);
        request.format = ExportFormat_FlashSWF;
        request.flashImageType = type;
        return request;
    }
    SwfContent written(const host::MovieRequest& request, int frames) const {
        writeMovingMovie(request, frames);
        return readSwf(request.path);
    }

    TestFolder m_folder;
};

std::vector<unsigned> codesOf(const SwfContent& content) {
    std::vector<unsigned> codes;
    for (const SwfTag& tag : content.tags) {
        codes.push_back(tag.code);
    }
    return codes;
}

TEST_F(SwfMovie, hasAHeaderThatTellsTheTruth) {
    const SwfContent content = written(request(FlashImageType_Lossless, 300, 201, 29.97), 3);
    EXPECT_EQ(content.signature, "FWS");
    EXPECT_EQ(content.version, 8U);
    EXPECT_EQ(content.lengthSaid, content.length);
    EXPECT_THAT(content.stage, ElementsAre(0, 6000, 0, 4020));
    EXPECT_EQ(content.rate, 7672U); // 29.97 * 256 = 7672.3
    EXPECT_EQ(content.frames, 3U);
}

TEST_F(SwfMovie, definesPlacesAndShowsEachPicture) {
    const SwfContent content = written(request(FlashImageType_Lossless, 40, 30), 2);
    EXPECT_THAT(codesOf(content),
                ElementsAre(tags::fileAttributes, tags::backgroundColor, tags::bitsLossless,
                            tags::defineShape, tags::placeObject2, tags::showFrame,
                            tags::bitsLossless, tags::defineShape, tags::placeObject2,
                            tags::showFrame, tags::end));
    // The second shape takes the place of the first one.
    EXPECT_THAT(content.tags[4].body, ElementsAre(2, 1, 0, 2, 0));
    EXPECT_THAT(content.tags[8].body, ElementsAre(3, 1, 0, 4, 0));
}

TEST_F(SwfMovie, givesEveryBitmapAndShapeANumberOfItsOwn) {
    const SwfContent content = written(request(FlashImageType_256Color, 8, 8), 40);
    unsigned bitmap = 0;
    unsigned number = 0;
    for (const SwfTag& tag : content.tags) {
        SwfFields fields(tag.body);
        if (tag.code == tags::bitsLossless) {
            bitmap = fields.number(2);
            EXPECT_EQ(bitmap, ++number);
        }
        if (tag.code == tags::defineShape) {
            EXPECT_EQ(fields.number(2), ++number);
            fields.rectangle();
            fields.number(2);
            EXPECT_EQ(fields.number(2), bitmap) << "the shape shows the bitmap before it";
        }
    }
    EXPECT_EQ(number, 80U);
}

TEST_F(SwfMovie, fillsTheStageWithThePicture) {
    const SwfContent content = written(request(FlashImageType_Lossless, 40, 30), 1);
    const SwfTag& shape = content.tags[3];
    SwfFields fields(shape.body);
    fields.number(2);
    EXPECT_THAT(fields.rectangle(), ElementsAre(0, 800, 0, 600));
    EXPECT_EQ(fields.number(1), 1U);    // fill style
    EXPECT_EQ(fields.number(1), 0x43U); // a bitmap without smoothing
    fields.number(2);
    EXPECT_EQ(fields.bits(1), 1U); // scaled from pixels to twips
    const auto count = static_cast<unsigned>(fields.bits(5));
    EXPECT_EQ(fields.signedBits(count), 20 * 65536);
    EXPECT_EQ(fields.signedBits(count), 20 * 65536);
    EXPECT_EQ(outlineOf(shape), "0,0 0,600 800,600 800,0 0,0");
}

TEST_F(SwfMovie, dividesEdgesThatAreLongerThanAField) {
    const SwfContent content = written(request(FlashImageType_Lossless, 8192, 8), 1);
    EXPECT_EQ(outlineOf(content.tags[3]),
              "0,0 0,160 65535,160 131070,160 163840,160 163840,0 98305,0 32770,0 0,0");
}

TEST_F(SwfMovie, holdsLosslessBitmapsOf24Bits) {
    const SwfContent content = written(request(FlashImageType_Lossless, 40, 30), 1);
    EXPECT_EQ(content.tags[2].code, tags::bitsLossless);
    EXPECT_EQ(content.tags[2].body[2], 5U);
    EXPECT_EQ(DecodedMovie(m_folder.path("movie.swf")).codec, "rawvideo");
}

TEST_F(SwfMovie, holdsJpegPicturesWithTheColorOfEveryPixel) {
    const SwfContent content = written(request(FlashImageType_JPEG, 40, 30), 1);
    EXPECT_EQ(content.tags[2].code, tags::bitsJpeg2);
    const DecodedMovie movie(m_folder.path("movie.swf"));
    EXPECT_EQ(movie.codec, "mjpeg");
    EXPECT_EQ(movie.pixelFormat, "yuvj444p");
}

TEST_F(SwfMovie, holdsBitmapsWithPalettes) {
    const SwfContent content = written(request(FlashImageType_256Color, 200, 150), 1);
    const auto& body = content.tags[2].body;
    EXPECT_EQ(content.tags[2].code, tags::bitsLossless);
    EXPECT_EQ(body[2], 3U);
    EXPECT_EQ(body[7], 255U) << "the last entry of the palette";
    EXPECT_EQ(DecodedMovie(m_folder.path("movie.swf")).pixelFormat, "pal8");
}

TEST_F(SwfMovie, showsNoneOfTheColumnsThatFillRowsOfPalettes) {
    const SwfContent content = written(request(FlashImageType_256Color, 201, 150), 1);
    SwfFields bitmap(content.tags[2].body, 3);
    EXPECT_EQ(bitmap.number(2), 204U);
    EXPECT_EQ(bitmap.number(2), 150U);
    EXPECT_THAT(content.stage, ElementsAre(0, 4020, 0, 3000));
    EXPECT_EQ(outlineOf(content.tags[3]), "0,0 0,3000 4020,3000 4020,0 0,0");
}

TEST_F(SwfMovie, isSmallerWhenItAimsAtItsSizeAndShowsTheSame) {
    for (const FlashImageType_e type :
         {FlashImageType_Lossless, FlashImageType_JPEG, FlashImageType_256Color}) {
        SCOPED_TRACE(type);
        host::MovieRequest movie = request(type, 320, 240);
        const std::size_t fast = written(movie, 3).length;
        const auto pictures = DecodedMovie(movie.path).pictures();
        movie.flashCompression = FlashCompressionType_SmallestSize;
        EXPECT_LT(written(movie, 3).length, fast);
        EXPECT_EQ(DecodedMovie(movie.path).pictures(), pictures);
    }
}

TEST_F(SwfMovie, tellsWhenItHasNoNumbersLeft) {
    movie::SwfMovie movie(request(FlashImageType_256Color, 1, 1));
    const host::Picture picture = uniformPicture(1, 1, {1, 2, 3});
    for (int n = 0; n < 32767; ++n) {
        movie.write(picture);
    }
    EXPECT_THAT([&] { movie.write(picture); },
                ThrowsMessage<host::HostError>(HasSubstr("at most 32767 pictures")));
    movie.finish();
    const SwfContent content = readSwf(m_folder.path("movie.swf"));
    EXPECT_EQ(content.frames, 32767U);
    EXPECT_EQ(content.lengthSaid, content.length);
}

} // namespace
} // namespace corvane::movie_test
