// An SWF movie being written.
#pragma once

#include "host/core/ports/Ports.h"
#include "host/movie/libav/LibavCheck.h"
#include "host/movie/libav/PictureSink.h"
#include "host/movie/swf/SwfFile.h"
#include "host/movie/swf/SwfImages.h"

#include <memory>

namespace corvane::movie {

class SwfMovie : public PictureSink {
public:
    /// Throws HostError when such a movie cannot be written.
    explicit SwfMovie(const host::MovieRequest& request);

    void write(const host::Picture& picture) override;
    void finish() override;

private:
    LibavCheck m_check;
    int m_width;
    int m_height;
    std::unique_ptr<SwfImages> m_images;
    SwfFile m_file;
    SwfImages::Taker m_store;
};

} // namespace corvane::movie
