#include "host/scene/mesh/ReadError.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <new>
#include <system_error>

namespace corvane::scene {

namespace {

/// Reasons quote damaged files, which hold anything.
std::string printable(std::string text) {
    std::replace_if(
        text.begin(), text.end(), [](unsigned char c) { return std::iscntrl(c) != 0; }, ' ');
    return text;
}

std::string reasonOf(const std::exception& error) {
    if (dynamic_cast<const ReadFailure*>(&error) != nullptr) {
        return error.what();
    }
    // Sizes are taken from the file, and may be anything when it is damaged.
    if (dynamic_cast<const std::bad_alloc*>(&error) != nullptr ||
        dynamic_cast<const std::length_error*>(&error) != nullptr) {
        return "it is damaged, or larger than this machine's memory";
    }
    if (const auto* files = dynamic_cast<const std::filesystem::filesystem_error*>(&error)) {
        return files->path1().string() + " cannot be used: " + files->code().message();
    }
    return "it is damaged, or its reader has made a mistake";
}

} // namespace

host::HostError readError(const std::string& path, const std::string& reason) {
    return host::HostError(path + " cannot be read: " + printable(reason) + ".");
}

host::HostError asReadError(const std::string& path, const std::exception& error) {
    if (const auto* sentence = dynamic_cast<const host::HostError*>(&error)) {
        return *sentence;
    }
    return readError(path, reasonOf(error));
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
    // A pipe may have nobody who writes to it, and a device no end.
    if (!std::filesystem::is_regular_file(status)) {
        throw readError(path, "it is not a regular file");
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
