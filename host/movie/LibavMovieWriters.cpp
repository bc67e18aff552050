// Chooses how a movie is written.
#include "host/movie/LibavMovieWriters.h"

#include "host/movie/EncoderThread.h"
#include "host/movie/FrameRate.h"
#include "host/movie/LibavCheck.h"
#include "host/movie/LibavLog.h"
#include "host/movie/Mpeg4Movie.h"

#include <string>

namespace corvane::movie {

namespace {

std::string formatName(ExportFormat_e format) {
    switch (format) {
    case ExportFormat_RasterMetafile:
        return "Raster metafile";
    case ExportFormat_AVI:
        return "AVI";
    case ExportFormat_FlashSWF:
        return "Flash (.swf)";
    case ExportFormat_FlashFLV:
        return "Flash video (.flv)";
    case ExportFormat_MPEG4:
        return "MPEG-4";
    case ExportFormat_WMV:
        return "Windows Media";
    }
    return "Such";
}

void checkSpeed(const host::MovieRequest& request) {
    // Written so that a speed that is not a number is refused too.
    if (request.framesPerSecond >= leastFramesPerSecond &&
        request.framesPerSecond <= mostFramesPerSecond)
        return;
    LibavCheck(request.path)
        .fail("its speed would be " + std::to_string(request.framesPerSecond) +
              " frames per second; choose 0.001 to 200");
}

std::unique_ptr<PictureSink> openSink(const host::MovieRequest& request) {
    if (request.format != ExportFormat_MPEG4)
        LibavCheck(request.path)
            .fail(formatName(request.format) +
                  " movies cannot be written by this version; choose MPEG-4 (.mp4)");
    return std::make_unique<Mpeg4Movie>(request);
}

} // namespace

std::unique_ptr<host::MovieWriter> LibavMovieWriters::open(const host::MovieRequest& request) {
    captureLibavLog();
    checkSpeed(request);
    std::unique_ptr<PictureSink> sink = openSink(request);
    return std::make_unique<EncoderThread>(std::move(sink),
                                           mostWaitingPictures(request.width, request.height));
}

} // namespace corvane::movie
