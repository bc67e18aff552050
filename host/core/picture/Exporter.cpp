// Records movies, and cleans up after those that fail.
#include "host/core/picture/Exporter.h"

#include "host/core/base/HostError.h"
#include "host/core/page/Page.h"
#include "host/core/picture/Drawing.h"
#include "host/core/picture/ExportSetup.h"
#include "host/core/picture/MovieFormats.h"
#include "host/core/picture/PictureRequests.h"
#include "host/core/ports/Ports.h"

#include <new>
#include <string_view>
#include <utility>

namespace corvane::host {

namespace {

constexpr std::string_view noMemory =
    "There is not enough memory for the movie. Choose a smaller width.";

ExportRegion_e regionOf(const ExportSetup& setup) {
    return static_cast<ExportRegion_e>(setup.region);
}

MovieRequest movieRequest(const ExportSetup& setup, const std::string& path,
                          const PictureRequest& picture) {
    MovieRequest movie;
    movie.path = path;
    movie.format = static_cast<ExportFormat_e>(setup.format);
    movie.width = picture.width;
    movie.height = picture.height;
    movie.framesPerSecond = setup.animationSpeed;
    movie.aviCompression = static_cast<AVICompression_e>(setup.aviCompression);
    movie.flashImageType = static_cast<FlashImageType_e>(setup.flashImageType);
    movie.flashCompression = static_cast<FlashCompressionType_e>(setup.flashCompressionType);
    return movie;
}

} // namespace

Exporter::Exporter(const Page& page, const ExportSetup& setup, Drawing& drawing, Renderer& renderer,
                   MovieWriters& writers, PartFile::Tell tell)
    : m_page(page),
      m_setup(setup),
      m_drawing(drawing),
      m_renderer(renderer),
      m_writers(writers),
      m_tell(std::move(tell)) {
    m_failure.reserve(noMemory.size());
}

Exporter::~Exporter() = default;

bool Exporter::start() {
    if (isRecording()) {
        return false; // and the movie that is being recorded goes on
    }
    forgetFailure();
    m_frames = 0;
    if (!guarded(&Exporter::open)) {
        close();
        return false;
    }
    return true;
}

bool Exporter::nextFrame() {
    return isRecording() && !hasFailed() && guarded(&Exporter::addPicture);
}

bool Exporter::finish() {
    const bool complete = isRecording() && !hasFailed() && guarded(&Exporter::complete);
    close();
    return complete;
}

bool Exporter::cancel() {
    const bool wasRecording = isRecording();
    close();
    return wasRecording;
}

PictureRequest Exporter::request() const {
    if (!m_setup.isAnimationFormat()) {
        throw HostError("The export format " + std::to_string(m_setup.format) +
                        " holds no movies. Choose " + movieDescriptions() + ".");
    }
    if (m_setup.fileName.empty()) {
        throw HostError("The movie has no file name. Set one in the export options.");
    }
    return pictureRequest(m_page, m_renderer, regionOf(m_setup), m_setup.imageWidth,
                          m_setup.useSuperSampleAntiAliasing ? m_setup.superSampleFactor : 1);
}

void Exporter::open() {
    m_request = request();
    m_file = std::make_unique<PartFile>(m_setup.fileName, m_tell);
    m_writer = m_writers.open(movieRequest(m_setup, m_file->path(), m_request));
    addPicture();
}

void Exporter::addPicture() {
    m_writer->add(m_drawing.picture(m_request));
    ++m_frames;
}

bool Exporter::guarded(void (Exporter::*step)()) {
    try {
        (this->*step)();
        return true;
    } catch (const std::bad_alloc&) {
        m_failure = noMemory;
    } catch (...) {
        keepFailure();
    }
    return false;
}

/// In a catch block.
void Exporter::keepFailure() {
    try {
        m_failure.assign(causeOfFailure());
    } catch (const std::bad_alloc&) {
        m_failure = noMemory;
    }
}

std::string Exporter::causeOfFailure() const {
    std::string cause;
    try {
        throw;
    } catch (const std::exception& error) {
        cause = messageOf(error);
    } catch (...) { // NOLINT(bugprone-empty-catch): nobody knows more than that it failed
    }
    if (cause.empty()) {
        return "The movie could not be written for an unknown reason.";
    }
    return m_file ? m_file->namingDestination(cause) : cause;
}

void Exporter::complete() {
    m_writer->finish();
    m_file->commit();
}

/// The writer goes first, since it may hold the file open.
void Exporter::close() {
    m_writer.reset();
    m_file.reset();
}

} // namespace corvane::host
