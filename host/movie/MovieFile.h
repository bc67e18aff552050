// One movie: pictures in, file out.
#pragma once

#include "host/core/Ports.h"
#include "host/movie/LibavCheck.h"
#include "host/movie/MovieFormat.h"
#include "host/movie/OutputContainer.h"
#include "host/movie/PictureConverter.h"
#include "host/movie/PictureSink.h"
#include "host/movie/VideoEncoder.h"

namespace corvane::movie {

class MovieFile : public PictureSink {
public:
    /// Starts the encoder and makes the file. Throws HostError.
    MovieFile(const host::MovieRequest& request, const MovieFormat& format);

    void write(const host::Picture& picture) override;
    void finish() override;

private:
    MovieFile(const host::MovieRequest& request, const MovieFormat& format,
              const EncoderSettings& settings, const LibavCheck& check);

    LibavCheck m_check;
    PictureConverter m_converter;
    OutputContainer m_container;
    VideoEncoder m_encoder;
    VideoEncoder::PacketTaker m_store;
    bool m_isEmpty = true;
};

} // namespace corvane::movie
