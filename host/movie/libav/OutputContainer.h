// A movie file with one stream of pictures.
#pragma once

#include "host/movie/libav/LibavCheck.h"
#include "host/movie/libav/LibavHandles.h"
#include "host/movie/libav/LibavOptions.h"

#include <string>

namespace corvane::movie {

/// The stream of a movie.
struct StreamShape {
    const AVCodecParameters* codec = nullptr;
    AVRational timeBase{0, 1}; ///< of the packets that will be written
    AVRational rate{0, 1};     ///< pictures per second
};

/// Destroying it before finish() closes the file without its end, and leaves it.
class OutputContainer {
public:
    /// Makes no file yet; it will stand at the check's path.
    OutputContainer(const std::string& container, LibavCheck check);

    /// Whether the stream's header belongs into the container, not into the packets.
    bool keepsHeaderApart() const;

    /// Makes or truncates the file and writes its beginning. Throws HostError.
    void begin(const StreamShape& shape, const LibavOptions& options);
    /// Times and duration of the packet are in the stream's time base of begin(); they are changed.
    void write(AVPacket* packet);
    /// Writes the file's end and closes it. Throws HostError when a byte may be missing.
    void finish();

private:
    void addStream(const StreamShape& shape);

    LibavCheck m_check;
    OutputHandle m_context;
    AVStream* m_stream = nullptr; ///< owned by m_context
    AVRational m_timeBase{0, 1};
};

/// How libav is told that a path is a path, whatever is in it.
std::string fileUrl(const std::string& path);

} // namespace corvane::movie
