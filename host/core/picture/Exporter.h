// Writes a movie picture by picture, as an add-on asks for it.
#pragma once

#include "host/core/files/PartFile.h"
#include "host/core/ports/Picture.h"

#include <memory>
#include <string>

namespace corvane::host {

class Drawing;
class MovieWriter;
class MovieWriters;
class Page;
class Renderer;
struct ExportSetup;

/// None of the operations throws: the last cause of a failure is kept for the host's own message.
class Exporter {
public:
    Exporter(const Page& page, const ExportSetup& setup, Drawing& drawing, Renderer& renderer,
             MovieWriters& writers, PartFile::Tell tell);
    ~Exporter();

    bool isRecording() const { return m_writer != nullptr; }
    /// Opens the movie and adds the current picture. After false nothing records and no file is
    /// left.
    bool start();
    /// Adds the current picture. After the first failure further pictures are refused.
    bool nextFrame();
    /// Completes the movie and puts it at its destination. False when that, or an earlier picture,
    /// failed: no file is left then.
    bool finish();
    /// Removes what was written; what stood at the destination stays.
    bool cancel();

    bool hasFailed() const { return !m_failure.empty(); }
    /// A sentence about the first failure since the last start(); empty without one.
    const std::string& failure() const { return m_failure; }
    void forgetFailure() { m_failure.clear(); }

    /// Pictures in the movie so far, or in the last one after it was finished.
    unsigned long frames() const { return m_frames; }

private:
    PictureRequest request() const; ///< throws HostError
    void open();
    void addPicture();
    bool guarded(void (Exporter::*step)());
    void keepFailure();
    std::string causeOfFailure() const;
    void complete();
    void close();

    const Page& m_page;
    const ExportSetup& m_setup;
    Drawing& m_drawing;
    Renderer& m_renderer;
    MovieWriters& m_writers;
    PartFile::Tell m_tell;
    std::unique_ptr<PartFile> m_file;
    std::unique_ptr<MovieWriter> m_writer;
    PictureRequest m_request;
    std::string m_failure; ///< has room for want of memory, as there is none for more then
    unsigned long m_frames = 0;
};

} // namespace corvane::host
