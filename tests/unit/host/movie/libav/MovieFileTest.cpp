// Movies in the ways that a libav without x264 leaves.
#include "host/movie/libav/MovieFile.h"

#include "host/core/base/HostError.h"
#include "host/movie/formats/Mpeg4Format.h"
#include "host/movie/libav/LibavLog.h"
#include "tests/unit/host/movie/DecodedMovie.h"
#include "tests/unit/host/movie/TestFolder.h"
#include "tests/unit/host/movie/TestMovie.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace corvane::movie_test {
namespace {

using testing::HasSubstr;
using testing::ThrowsMessage;

class MovieFile : public testing::Test {
protected:
    MovieFile() { movie::captureLibavLog(); }

    std::string path() const { return m_folder.path("movie.mp4"); }

    TestFolder m_folder;
    movie::VideoSettings m_settings = movie::Mpeg4Format().settings({});
};

TEST_F(MovieFile, usesTheNextEncoderWhereTheFirstIsMissing) {
    m_settings.encoders.front().encoder = "an encoder that nobody has";
    movie::MovieFile file(movieRequest(path(), 321, 240, 29.97), m_settings);
    for (int n = 0; n < 40; ++n) {
        file.write(movingPicture(321, 240, n));
    }
    file.finish();

    const DecodedMovie movie(path());
    EXPECT_EQ(movie.codec, "mpeg4");
    EXPECT_EQ(movie.width, 322);
    EXPECT_EQ(movie.rateNumerator, 2997);
    EXPECT_EQ(movie.rateDenominator, 100);
    EXPECT_GE(lowestPsnr(movie, movingPictures(321, 240, 40)), 30.0);
}

TEST_F(MovieFile, takesTheSlowestAndTheFastestSpeedWithTheNextEncoder) {
    m_settings.encoders.erase(m_settings.encoders.begin());
    for (const double speed : {0.001, 199.999, 200.0}) {
        movie::MovieFile file(movieRequest(path(), 64, 48, speed), m_settings);
        file.write(movingPicture(64, 48, 0));
        file.write(movingPicture(64, 48, 1));
        file.finish();
        EXPECT_NEAR(DecodedMovie(path()).duration * speed, 2.0, 0.01);
    }
}

TEST_F(MovieFile, saysWhichEncoderIsMissing) {
    m_settings.encoders.resize(1);
    m_settings.encoders.front().encoder = "an encoder that nobody has";
    EXPECT_THAT([&] { movie::MovieFile(movieRequest(path(), 64, 48), m_settings); },
                ThrowsMessage<host::HostError>(HasSubstr("an encoder that nobody has")));
}

TEST_F(MovieFile, refusesOptionsThatWouldHaveNoEffect) {
    m_settings.encoders.front().options.emplace_back("sharpness", "11");
    EXPECT_THAT([&] { movie::MovieFile(movieRequest(path(), 64, 48), m_settings); },
                ThrowsMessage<host::HostError>(HasSubstr("sharpness")));
}

TEST_F(MovieFile, passesOnWhatTheEncoderSays) {
    m_settings.encoders.front().options = {{"preset", "leisurely"}};
    EXPECT_THAT([&] { movie::MovieFile(movieRequest(path(), 64, 48), m_settings); },
                ThrowsMessage<host::HostError>(HasSubstr("leisurely")));
}

} // namespace
} // namespace corvane::movie_test
