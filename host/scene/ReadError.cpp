// The sentences for files that cannot be read.
#include "host/scene/ReadError.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace corvane::scene {

host::HostError readError(const std::string& path, const std::string& reason) {
    return host::HostError(path + " cannot be read: " + reason + ".");
}

void checkReadable(const std::string& path) {
    std::error_code error;
    const auto status = std::filesystem::status(path, error);
    if (!std::filesystem::exists(status))
        throw readError(path, "there is no such file");
    if (std::filesystem::is_directory(status))
        throw readError(path, "it is a folder");
    errno = 0;
    std::ifstream stream(path, std::ios::binary);
    if (!stream)
        throw readError(path, std::generic_category().message(errno));
    if (stream.peek() == std::ifstream::traits_type::eof())
        throw readError(path, "the file is empty");
}

} // namespace corvane::scene
