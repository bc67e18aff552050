#include "host/movie/LibavMovieWriters.h"

#include "host/core/base/Limits.h"
#include "host/core/picture/MovieFormats.h"
#include "host/movie/EncoderThread.h"
#include "host/movie/formats/AviFormat.h"
#include "host/movie/formats/FlvFormat.h"
#include "host/movie/formats/Mpeg4Format.h"
#include "host/movie/formats/RasterMetafileFormat.h"
#include "host/movie/formats/SwfFormat.h"
#include "host/movie/formats/WmvFormat.h"
#include "host/movie/libav/LibavCheck.h"
#include "host/movie/libav/LibavLog.h"

#include <iostream>
#include <utility>

namespace corvane::movie {

namespace {

void logOnStandardError(const std::string& note) {
    std::clog << "corvane: " + note + "\n" << std::flush;
}

void checkSpeed(const host::MovieRequest& request) {
    if (!host::limits::framesPerSecond.contains(request.framesPerSecond)) {
        LibavCheck(request.path)
            .fail("its speed would be " + std::to_string(request.framesPerSecond) +
                  " frames per second; choose " + host::rangeText(host::limits::framesPerSecond));
    }
}

std::unique_ptr<FileFormat> formatOf(const host::MovieRequest& request) {
    switch (request.format) {
    case ExportFormat_AVI:
        return std::make_unique<AviFormat>();
    case ExportFormat_FlashFLV:
        return std::make_unique<FlvFormat>();
    case ExportFormat_FlashSWF:
        return std::make_unique<SwfFormat>();
    case ExportFormat_MPEG4:
        return std::make_unique<Mpeg4Format>();
    case ExportFormat_RasterMetafile:
        return std::make_unique<RasterMetafileFormat>();
    case ExportFormat_WMV:
        return std::make_unique<WmvFormat>();
    }
    LibavCheck(request.path)
        .fail("format " + std::to_string(request.format) + " holds no movies; choose " +
              host::movieDescriptions());
}

} // namespace

LibavMovieWriters::LibavMovieWriters() : LibavMovieWriters(logOnStandardError) {}

LibavMovieWriters::LibavMovieWriters(Log log) : m_log(std::move(log)) {}

std::unique_ptr<host::MovieWriter> LibavMovieWriters::open(const host::MovieRequest& request) {
    captureLibavLog();
    checkSpeed(request);
    std::unique_ptr<PictureSink> sink = formatOf(request)->open(request);
    if (const std::string note = sink->note(); !note.empty()) {
        m_log(note);
    }
    return std::make_unique<EncoderThread>(std::move(sink),
                                           mostWaitingPictures(request.width, request.height));
}

} // namespace corvane::movie
