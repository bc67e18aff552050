// A movie file with one video stream.
#pragma once

#include "host/movie/libav/LibavCheck.h"
#include "host/movie/libav/LibavHandles.h"
#include "host/movie/libav/LibavOptions.h"

#include <string>

namespace corvane::movie {

/// The stream of a movie.
struct StreamShape {
    const AVCodecParameters* codec = nullptr;
    AVRational timeBase{0, 1}; ///< of the packets to be written
    AVRational rate{0, 1};     ///< pictures per second
};

/// Destroying it before finish() closes the file without its trailer, and does not remove it.
class OutputContainer {
public:
    /// Does not create the file yet; its path will be that of the check.
    OutputContainer(const std::string& container, LibavCheck check);

    /// Whether the stream's header belongs in the container instead of the packets.
    bool keepsHeaderApart() const;

    /// Creates or truncates the file and writes its header. Throws HostError.
    void begin(const StreamShape& shape, const LibavOptions& options);
    /// Expects the timestamps of the packet in the time base given to begin(), and rescales them.
    void write(AVPacket* packet);
    /// Writes the trailer and closes the file. Throws HostError unless every byte was written.
    void finish();

private:
    void addStream(const StreamShape& shape);

    LibavCheck m_check;
    OutputHandle m_context;
    AVStream* m_stream = nullptr; ///< owned by m_context
    AVRational m_timeBase{0, 1};
};

/// The path as a URL, so that libav never takes a part of it for a protocol.
std::string fileUrl(const std::string& path);

} // namespace corvane::movie
