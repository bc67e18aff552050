// The kinds of movies that the export options can ask for.
#include "tests/unit/host/movie/MovieKind.h"

#include "tests/unit/host/movie/TestMovie.h"

#include <limits>

namespace corvane::movie_test {

namespace {

MovieKind avi(const char* name, AVICompression_e compression, bool isLossless) {
    MovieKind kind{name, ExportFormat_AVI, isLossless, 32767};
    kind.aviCompression = compression;
    return kind;
}

MovieKind swf(const char* name, FlashImageType_e type, FlashCompressionType_e compression) {
    MovieKind kind{name, ExportFormat_FlashSWF, type == FlashImageType_Lossless, 65500};
    kind.widthStep = type == FlashImageType_256Color ? 4 : 1;
    kind.flashImageType = type;
    kind.flashCompression = compression;
    return kind;
}

} // namespace

const std::vector<MovieKind>& movieKinds() {
    static const std::vector<MovieKind> all{
        {"mp4", ExportFormat_MPEG4, false, 16384, 2, 2},
        avi("aviLines", AVICompression_LinePreserving, true),
        avi("aviUncompressed", AVICompression_LosslessUncompressed, true),
        avi("aviColors", AVICompression_ColorPreserving, false),
        {"flv", ExportFormat_FlashFLV, false, 16384, 2, 2},
        swf("swfTrueColorFast", FlashImageType_Lossless, FlashCompressionType_BestSpeed),
        swf("swfTrueColorSmall", FlashImageType_Lossless, FlashCompressionType_SmallestSize),
        swf("swfJpegFast", FlashImageType_JPEG, FlashCompressionType_BestSpeed),
        swf("swfJpegSmall", FlashImageType_JPEG, FlashCompressionType_SmallestSize),
        swf("swf256Fast", FlashImageType_256Color, FlashCompressionType_BestSpeed),
        swf("swf256Small", FlashImageType_256Color, FlashCompressionType_SmallestSize),
        {"wmv", ExportFormat_WMV, false, 32766, 2, 2},
        {"rm", ExportFormat_RasterMetafile, true, std::numeric_limits<int>::max()}};
    return all;
}

host::MovieRequest movieRequest(const MovieKind& kind, const std::string& path, int width,
                                int height, double framesPerSecond) {
    host::MovieRequest request = movieRequest(path, width, height, framesPerSecond);
    request.format = kind.format;
    request.aviCompression = kind.aviCompression;
    request.flashImageType = kind.flashImageType;
    request.flashCompression = kind.flashCompression;
    return request;
}

std::string nameOfKind(const testing::TestParamInfo<MovieKind>& test) {
    return test.param.name;
}

std::ostream& operator<<(std::ostream& stream, const MovieKind& kind) {
    return stream << kind.name;
}

} // namespace corvane::movie_test
