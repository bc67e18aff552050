// A movie format for which libav has both encoder and container.
#pragma once

#include "host/movie/formats/FileFormat.h"
#include "host/movie/libav/VideoSettings.h"

namespace corvane::movie {

class VideoFormat : public FileFormat {
public:
    std::unique_ptr<PictureSink> open(const host::MovieRequest& request) const override;

    virtual VideoSettings settings(const host::MovieRequest& request) const = 0;
};

} // namespace corvane::movie
