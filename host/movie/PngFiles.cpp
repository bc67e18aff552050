#include "host/movie/PngFiles.h"

#include "host/core/base/HostError.h"

#include <png.h>

#include <cerrno>
#include <cstring>
#include <memory>

namespace corvane::movie {

namespace {

std::vector<std::uint8_t> withoutAlpha(const host::Picture& picture) {
    std::vector<std::uint8_t> rgb;
    rgb.reserve(picture.rgba.size() / 4 * 3);
    for (std::size_t i = 0; i + 3 < picture.rgba.size(); i += 4) {
        rgb.insert(rgb.end(), picture.rgba.begin() + static_cast<std::ptrdiff_t>(i),
                   picture.rgba.begin() + static_cast<std::ptrdiff_t>(i) + 3);
    }
    return rgb;
}

} // namespace

void PngFiles::write(const host::Picture& picture, const std::string& path) {
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(picture.width);
    image.height = static_cast<png_uint_32>(picture.height);
    image.format = PNG_FORMAT_RGB;
    const std::vector<std::uint8_t> rgb = withoutAlpha(picture);
    errno = 0;
    if (png_image_write_to_file(&image, path.c_str(), 0, rgb.data(), 0, nullptr) == 0) {
        const std::string cause = errno != 0 ? std::strerror(errno) : image.message;
        throw host::HostError("Cannot write the picture " + path + ": " + cause + ".");
    }
}

} // namespace corvane::movie
