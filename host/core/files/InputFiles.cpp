#include "host/core/files/InputFiles.h"

#include <sys/stat.h>

#include <filesystem>
#include <system_error>

namespace corvane::host {

namespace {

namespace fs = std::filesystem;

/// Absolute and without links; what cannot be looked up stays as it is.
fs::path resolved(const std::string& path) {
    std::error_code error;
    const fs::path absolute = fs::absolute(path, error);
    if (error) {
        return path;
    }
    const fs::path real = fs::weakly_canonical(absolute, error);
    return error ? absolute.lexically_normal() : real;
}

} // namespace

bool InputFiles::identify(const std::string& path, Identity& identity) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) {
        return false;
    }
    identity = {status.st_dev, status.st_ino};
    return true;
}

void InputFiles::add(const std::string& path) {
    const std::string name = resolved(path).string();
    Identity identity{};
    const bool isThere = identify(name, identity);
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_names.insert(name);
    if (isThere) {
        m_nameOf[identity] = name;
    }
}

bool InputFiles::contains(const std::string& path) const {
    const fs::path name = resolved(path);
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_names.contains(name.string())) {
        return true;
    }
    Identity identity{};
    if (!identify(name.string(), identity)) {
        return false; // there is nothing to be lost
    }
    for (fs::path part = name; part != part.root_path(); part = part.parent_path()) {
        if (isOneOfThem(part.string())) {
            return true;
        }
    }
    return false;
}

bool InputFiles::isOneOfThem(const std::string& path) const {
    Identity identity{};
    if (!identify(path, identity)) {
        return false;
    }
    const auto known = m_nameOf.find(identity);
    // The number of a file that was deleted since may be that of another one now.
    Identity now{};
    return known != m_nameOf.end() && identify(known->second, now) && now == identity;
}

InputFiles& inputFiles() {
    // Never destroyed: data are read ahead until the process ends.
    static auto* const files = new InputFiles;
    return *files;
}

} // namespace corvane::host
