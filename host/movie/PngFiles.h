// Picture files in the PNG format.
#pragma once

#include "host/core/ports/Ports.h"

namespace corvane::movie {

/// Writes the colours unchanged, without the alpha channel.
class PngFiles : public host::PictureFiles {
public:
    void write(const host::Picture& picture, const std::string& path) override;
};

} // namespace corvane::movie
