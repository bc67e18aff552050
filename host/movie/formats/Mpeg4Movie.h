// An MPEG-4 movie being written.
#pragma once

#include "host/core/files/ScratchFile.h"
#include "host/movie/libav/MovieFile.h"

#include <memory>
#include <string>

namespace corvane::movie {

/// Fragmented while it is being written, so that the file of a killed process can be played; plain
/// once it is finished, for compatibility with the most players.
class Mpeg4Movie : public PictureSink {
public:
    Mpeg4Movie(const host::MovieRequest& request, const VideoSettings& settings);

    std::string note() const override { return m_file.note(); }
    void write(const host::Picture& picture) override { m_file.write(picture); }
    void finish() override;

private:
    std::string m_path;
    MovieFile m_file;
    /// What stands at the path once it is finished: nobody may take it for a left-over.
    std::unique_ptr<host::ScratchFile> m_plain;
};

} // namespace corvane::movie
