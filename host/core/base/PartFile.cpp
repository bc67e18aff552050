// Makes, completes and removes part files.
#include "host/core/base/PartFile.h"

#include "host/core/base/HostError.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <utility>

namespace corvane::host {

namespace {

namespace fs = std::filesystem;

HostError cannotWrite(const std::string& destination, const std::string& reason) {
    return HostError("Cannot write " + destination + ": " + reason + ".");
}

std::string reasonOf(int error) {
    return std::strerror(error);
}

fs::path folderOf(const std::string& file) {
    const fs::path folder = fs::path(file).parent_path();
    return folder.empty() ? fs::path(".") : folder;
}

void checkDestination(const std::string& destination) {
    std::error_code error;
    const fs::path folder = folderOf(destination);
    if (!fs::is_directory(folder, error)) {
        throw cannotWrite(destination, "there is no folder " + folder.string());
    }
    const fs::file_status status = fs::status(destination, error);
    if (fs::is_directory(status)) {
        throw cannotWrite(destination, "it is a folder");
    }
    if (fs::exists(status) && !fs::is_regular_file(status)) {
        throw cannotWrite(destination, "it is not a regular file");
    }
}

/// Made at once, since that is the surest way to learn whether it can be.
void makeEmpty(const std::string& destination, const std::string& path) {
    const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    if (file < 0) {
        throw cannotWrite(destination, reasonOf(errno));
    }
    ::close(file);
}

/// Waits until a file or folder is on the disk; the error number, 0 when all went well. Some file
/// systems know no flushing, which is no failure.
int flush(const std::string& path) {
    const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0) {
        return errno;
    }
    const int error = ::fsync(file) == 0 ? 0 : errno;
    ::close(file);
    return error == EINVAL || error == ENOTSUP ? 0 : error;
}

} // namespace

PartFile::PartFile(std::string destination)
    : m_destination(std::move(destination)), m_path(m_destination + ".part") {
    checkDestination(m_destination);
    makeEmpty(m_destination, m_path);
}

PartFile::~PartFile() {
    if (m_pending) {
        ::unlink(m_path.c_str());
    }
}

std::string PartFile::namingDestination(std::string message) const {
    std::size_t at = 0;
    while ((at = message.find(m_path, at)) != std::string::npos) {
        message.replace(at, m_path.size(), m_destination);
        at += m_destination.size();
    }
    return message;
}

void PartFile::commit() {
    int error = flush(m_path);
    if (error == 0 && std::rename(m_path.c_str(), m_destination.c_str()) != 0) {
        error = errno;
    }
    m_pending = false;
    if (error != 0) {
        ::unlink(m_path.c_str());
        throw cannotWrite(m_destination, reasonOf(error));
    }
    // The file stands at its name now; a folder that cannot be flushed does not take it away.
    flush(folderOf(m_destination).string());
}

} // namespace corvane::host
