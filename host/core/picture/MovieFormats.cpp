#include "host/core/picture/MovieFormats.h"

#include "host/core/base/Text.h"

#include <algorithm>
#include <filesystem>

namespace corvane::host {

namespace {

template <typename Condition>
const MovieFormat* firstWhere(const Condition& condition) {
    const auto& all = movieFormats();
    const auto found = std::find_if(all.begin(), all.end(), condition);
    return found == all.end() ? nullptr : &*found;
}

} // namespace

const std::vector<MovieFormat>& movieFormats() {
    static const std::vector<MovieFormat> all{
        {ExportFormat_MPEG4, "MPEG4", ".mp4", "MPEG-4"},
        {ExportFormat_AVI, "AVI", ".avi", "AVI"},
        {ExportFormat_FlashFLV, "FLV", ".flv", "Flash (FLV)"},
        {ExportFormat_FlashSWF, "FLASH", ".swf", "Flash (SWF)"},
        {ExportFormat_WMV, "WMV", ".wmv", "WMV"},
        {ExportFormat_RasterMetafile, "RASTERMETAFILE", ".rm", "raster metafile"}};
    return all;
}

const MovieFormat* movieFormatOf(int code) {
    return firstWhere([code](const MovieFormat& format) { return format.code == code; });
}

const MovieFormat* movieFormatForFile(const std::string& fileName) {
    const std::string extension = std::filesystem::path(fileName).extension().string();
    return firstWhere([&extension](const MovieFormat& format) {
        return equalIgnoringCase(format.extension, extension);
    });
}

std::string movieExtensions() {
    std::string list;
    for (const MovieFormat& format : movieFormats()) {
        list += (list.empty() ? "" : ", ") + std::string(format.extension);
    }
    return list;
}

std::string movieDescriptions() {
    std::string list;
    for (const MovieFormat& format : movieFormats()) {
        const bool isLast = &format == &movieFormats().back();
        list += (list.empty() ? "" : isLast ? " or " : ", ") + std::string(format.description);
    }
    return list;
}

} // namespace corvane::host
