// Movies that cannot be written are refused before the first picture.
#include "host/movie/LibavMovieWriters.h"

#include "host/core/HostError.h"
#include "tests/unit/movie/TestFolder.h"
#include "tests/unit/movie/TestMovie.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <utility>

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

TEST_F(RefusedMovie, ofAnotherFormat) {
    for (const ExportFormat_e format :
         {ExportFormat_RasterMetafile, ExportFormat_AVI, ExportFormat_FlashSWF,
          ExportFormat_FlashFLV, ExportFormat_WMV}) {
        host::MovieRequest other = request();
        other.format = format;
        expectRefusal(other, HasSubstr("choose MPEG-4 (.mp4)"));
    }
}

TEST_F(RefusedMovie, ofAnImpossibleSize) {
    for (const auto& [width, height] :
         {std::pair(0, 48), std::pair(64, 0), std::pair(-1, 48), std::pair(64, -48),
          std::pair(16385, 48), std::pair(64, 16385), std::pair(2147483647, 2147483647)}) {
        host::MovieRequest other = request();
        other.width = width;
        other.height = height;
        expectRefusal(other,
                      AllOf(HasSubstr(std::to_string(width) + " x " + std::to_string(height)),
                            HasSubstr("16384")));
    }
}

TEST_F(RefusedMovie, ofAnImpossibleSpeed) {
    for (const double speed :
         {0.0, -30.0, 0.0009, 200.001, 1e300, std::numeric_limits<double>::infinity(),
          std::numeric_limits<double>::quiet_NaN()}) {
        host::MovieRequest other = request();
        other.framesPerSecond = speed;
        expectRefusal(other, HasSubstr("choose 0.001 to 200"));
    }
}

TEST_F(RefusedMovie, inAFolderThatIsNotThere) {
    host::MovieRequest other = request();
    other.path = m_folder.path("missing/movie.mp4");
    expectRefusal(other, AllOf(HasSubstr(other.path), HasSubstr("No such file or directory")));
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
