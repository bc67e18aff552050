// The formats of movies: one table for set-up, command line, messages and writers.
#pragma once

#include "hostapi/CorEnums.h"

#include <string>
#include <vector>

namespace corvane::host {

struct MovieFormat {
    ExportFormat_e code;
    const char* keyword;     ///< in macros: "MPEG4"
    const char* extension;   ///< of its files, in lower case: ".mp4"
    const char* description; ///< in sentences: "MPEG-4"
};

/// The most useful ones first.
const std::vector<MovieFormat>& movieFormats();

/// Null when the code is not that of a movie format.
const MovieFormat* movieFormatOf(int code);

/// The format that the extension of the name stands for (letter case ignored); null for none.
const MovieFormat* movieFormatForFile(const std::string& fileName);

/// ".mp4, .avi, …" for messages.
std::string movieExtensions();
/// "MPEG-4, AVI, … or raster metafile" for messages.
std::string movieDescriptions();

} // namespace corvane::host
