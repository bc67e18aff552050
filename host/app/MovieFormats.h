// Movie formats by the extension of a file.
#pragma once

#include <string>

namespace corvane::app {

struct MovieFormat {
    const char* extension; ///< ".mp4"
    const char* keyword;   ///< as the export set-up calls it
};

/// The format that the extension of the name stands for (letter case ignored); null for none.
const MovieFormat* movieFormatFor(const std::string& fileName);

/// ".mp4, .avi, …" for messages.
std::string movieExtensions();

} // namespace corvane::app
