// Movie formats by the extension of a file.
#include "host/app/MovieFormats.h"

#include <algorithm>
#include <array>
#include <filesystem>

namespace corvane::app {
namespace {

constexpr std::array<MovieFormat, 6> formats{{{".mp4", "MPEG4"},
                                              {".avi", "AVI"},
                                              {".flv", "FLV"},
                                              {".swf", "FLASH"},
                                              {".wmv", "WMV"},
                                              {".rm", "RASTERMETAFILE"}}};

std::string lowerCase(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return text;
}

} // namespace

const MovieFormat* movieFormatFor(const std::string& fileName) {
    const std::string wanted = lowerCase(std::filesystem::path(fileName).extension().string());
    const auto found = std::find_if(formats.begin(), formats.end(),
                                    [&](const MovieFormat& f) { return wanted == f.extension; });
    return found == formats.end() ? nullptr : &*found;
}

std::string movieExtensions() {
    std::string list;
    for (const MovieFormat& format : formats) {
        list += (list.empty() ? "" : ", ") + std::string(format.extension);
    }
    return list;
}

} // namespace corvane::app
