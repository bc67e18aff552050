// Finds out which library code belongs to.
#include "host/api/Operation.h"

#include <dlfcn.h>

#include <filesystem>

namespace corvane::host {

namespace {

/// Null when the address lies in nothing that is loaded.
const void* baseAt(const void* address, const char*& fileName) {
    Dl_info found{};
    if (::dladdr(address, &found) == 0) {
        return nullptr;
    }
    fileName = found.dli_fname;
    return found.dli_fbase;
}

} // namespace

std::string libraryAt(const void* address) {
    static const int ownCode = 0; // an object of this library
    const char* fileName = nullptr;
    const char* ownName = nullptr;
    const void* const base = baseAt(address, fileName);
    if (base == nullptr || base == baseAt(&ownCode, ownName) || fileName == nullptr) {
        return {};
    }
    return std::filesystem::path(fileName).filename().string();
}

std::string complaint(const Operation& operation, const std::string& what) {
    const std::string library = libraryAt(operation.calledFrom);
    return (library.empty() ? "" : library + ": ") + operation.name + ": " + what;
}

} // namespace corvane::host
