// Sentences for exceptions.
#include "host/core/base/HostError.h"

#include <filesystem>
#include <new>

namespace corvane::host {

namespace {

std::string ofFileSystem(const std::filesystem::filesystem_error& error) {
    const std::string path = error.path1().string();
    return (path.empty() ? "The file system failed" : "Cannot use " + path) + ": " +
           error.code().message() + ".";
}

} // namespace

std::string messageOf(const std::exception& error) {
    if (dynamic_cast<const HostError*>(&error) != nullptr) {
        return error.what();
    }
    if (dynamic_cast<const std::bad_alloc*>(&error) != nullptr) {
        return "There is not enough memory. Close other programs, or use less data, smaller "
               "pictures or less supersampling.";
    }
    if (const auto* files = dynamic_cast<const std::filesystem::filesystem_error*>(&error)) {
        return ofFileSystem(*files);
    }
    return std::string("The program has made a mistake; please report it: ") + error.what();
}

} // namespace corvane::host
