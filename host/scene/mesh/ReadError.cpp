// The sentences for files that cannot be read.
#include "host/scene/mesh/ReadError.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace corvane::scene {

namespace {

/// Reasons quote damaged files, which hold anything.
std::string printable(std::string text) {
    std::replace_if(
        text.begin(), text.end(), [](unsigned char c) { return std::iscntrl(c) != 0; }, ' ');
    return text;
}

} // namespace

host::HostError readError(const std::string& path, const std::string& reason) {
    return host::HostError(path + " cannot be read: " + printable(reason) + ".");
}

void checkReadable(const std::string& path) {
    std::error_code error;
    const auto status = std::filesystem::status(path, error);
    if (!std::filesystem::exists(status)) {
        throw readError(path, "there is no such file");
    }
    if (std::filesystem::is_directory(status)) {
        throw readError(path, "it is a folder");
    }
    errno = 0;
    std::ifstream stream(path, std::ios::binary);
    if (!stream) {
        throw readError(path, std::generic_category().message(errno));
    }
    if (stream.peek() == std::ifstream::traits_type::eof()) {
        throw readError(path, "the file is empty");
    }
}

} // namespace corvane::scene
