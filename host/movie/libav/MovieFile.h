// A movie written by libav: pictures in, file out.
#pragma once

#include "host/core/ports/Ports.h"
#include "host/movie/libav/LibavCheck.h"
#include "host/movie/libav/OutputContainer.h"
#include "host/movie/libav/PictureConverter.h"
#include "host/movie/libav/PictureSink.h"
#include "host/movie/libav/VideoEncoder.h"
#include "host/movie/libav/VideoSettings.h"

#include <string>

namespace corvane::movie {

class MovieFile : public PictureSink {
public:
    /// Starts the encoder and creates the file. Throws HostError.
    MovieFile(const host::MovieRequest& request, const VideoSettings& settings);

    std::string note() const override;
    void write(const host::Picture& picture) override;
    void finish() override;

private:
    MovieFile(const host::MovieRequest& request, const VideoSettings& settings,
              const EncoderSettings& encoder, const LibavCheck& check);

    LibavCheck m_check;
    int m_width;
    int m_height;
    PictureConverter m_converter;
    OutputContainer m_container;
    VideoEncoder m_encoder;
    VideoEncoder::PacketTaker m_store;
    bool m_isEmpty = true;
};

} // namespace corvane::movie
