// What the core needs of the outside, as small interfaces: scene, movie, gui and app implement
// them, tests implement them in memory.
#pragma once

#include "host/core/page/DataSet.h"
#include "host/core/ports/DataFormat.h"
#include "host/core/ports/Picture.h"
#include "hostapi/CorEnums.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace corvane::host {

class Page;

/// Draws pages. The picture depends on the page alone, never on what was drawn before.
class Renderer {
public:
    virtual ~Renderer() = default;
    /// Throws HostError when the picture cannot be made.
    virtual Picture draw(const Page& page, const PictureRequest& request) = 0;
    /// The largest width or height of a picture, supersampling included, that draw() can make.
    virtual int largestSize() const = 0;
};

/// Where people see the work area; a batch run has none.
class Screen {
public:
    virtual ~Screen() = default;
    /// Draws the page and shows it before returning. allFrames false: the active frame will do.
    virtual void present(const Page& page, bool allFrames) = 0;
};

class DataReader {
public:
    virtual ~DataReader() = default;
    /// What can be read, as the user is told of it.
    virtual std::vector<DataFormat> formats() const = 0;
    /// Reads one data set from one or more files. Throws HostError: a sentence with the file's name
    /// and the reason.
    virtual std::shared_ptr<const DataSet> read(const std::vector<std::string>& files) = 0;
};

class PictureFiles {
public:
    virtual ~PictureFiles() = default;
    /// Writes a PNG file under this very name. Throws HostError.
    virtual void write(const Picture& picture, const std::string& path) = 0;
};

/// How a movie is to be written.
struct MovieRequest {
    std::string path; ///< written as it stands; made or truncated
    ExportFormat_e format = ExportFormat_MPEG4;
    int width = 0;                 ///< pixels of the pictures that will be added
    int height = 0;                ///< odd sizes are padded where the format needs even ones
    double framesPerSecond = 30.0; ///< limits::framesPerSecond
    AVICompression_e aviCompression = AVICompression_LinePreserving;
    FlashImageType_e flashImageType = FlashImageType_Lossless;
    FlashCompressionType_e flashCompression = FlashCompressionType_BestSpeed;
};

/// A movie being written. Destroying it before finish() leaves a file that is not complete; the
/// caller removes it.
class MovieWriter {
public:
    virtual ~MovieWriter() = default;
    /// Takes the picture over; blocks while too many wait to be encoded. Throws HostError when an
    /// earlier picture could not be written.
    virtual void add(Picture picture) = 0;
    /// Writes what waits, and the end of the file, and closes it. Throws HostError.
    virtual void finish() = 0;
};

class MovieWriters {
public:
    virtual ~MovieWriters() = default;
    /// Throws HostError, before a picture is made, when such a movie cannot be written.
    virtual std::unique_ptr<MovieWriter> open(const MovieRequest& request) = 0;
};

/// Shows progress. At most one display at a time.
class StatusDisplay {
public:
    virtual ~StatusDisplay() = default;
    virtual void start(const std::string& text, bool showStop, bool showProgress) = 0;
    virtual void setText(const std::string& text) = 0;
    virtual void setPercent(int percent) = 0; ///< 0..100
    virtual void finish() = 0;
    /// Looks after pending events, where there are any, and tells whether the user asked to stop
    /// since start(). Called very often.
    virtual bool isStopRequested() = 0;
};

/// Asks and tells the user. Texts are plain, "\n" breaks lines.
class UserPrompts {
public:
    virtual ~UserPrompts() = default;
    virtual void showError(const std::string& message) = 0;
    virtual void showNotice(const std::string& message) = 0;
    virtual bool askYesNo(const std::string& question) = 0; ///< true exactly for yes
    /// An absolute path, or nothing when the user cancelled.
    virtual std::optional<std::string> askFileName(bool forWriting, const std::string& fileType,
                                                   const std::string& defaultName,
                                                   const std::string& filter) = 0;
    virtual bool showHelp(const std::string& page) = 0; ///< false: no such page
};

/// Runs work when nothing else is to be done; a batch run has none.
class IdleTimer {
public:
    virtual ~IdleTimer() = default;
    virtual void requestIdle() = 0; ///< asks for one Application::onIdle() from the event loop
};

} // namespace corvane::host
