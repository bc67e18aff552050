// Makes, completes and removes part files.
#include "host/core/files/PartFile.h"

#include "host/core/base/HostError.h"
#include "host/core/files/Folder.h"
#include "host/core/files/InputFiles.h"
#include "host/core/files/Leftovers.h"
#include "host/core/files/PartName.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>
#include <utility>

namespace corvane::host {

namespace {

namespace fs = std::filesystem;

HostError cannotWrite(const std::string& destination, const std::string& reason) {
    return HostError("Cannot write " + destination + ": " + reason + ".");
}

/// Where the link leads, or the last of those that lead nowhere; any other path itself.
fs::path followed(fs::path path) {
    constexpr int mostLinks = 40; // as the system has it
    std::error_code error;
    for (int links = 0; links < mostLinks && fs::is_symlink(path, error); ++links) {
        path = path.parent_path() / fs::read_symlink(path, error);
    }
    return path;
}

/// Why no file can be written there; empty when one can.
std::string obstacleAt(const fs::path& target) {
    std::error_code error;
    const fs::path folder = folderOf(target);
    if (!fs::is_directory(folder, error)) {
        return "there is no folder " + folder.string();
    }
    const std::string name = target.filename().string();
    if (const std::size_t longest = longestNameIn(folder); name.size() > longest) {
        return "its name has " + std::to_string(name.size()) + " bytes, and " +
               std::to_string(longest) + " are possible there";
    }
    const fs::file_status status = fs::status(target, error);
    if (error && error != std::errc::no_such_file_or_directory) {
        return error.message();
    }
    if (fs::is_directory(status)) {
        return "it is a folder";
    }
    if (fs::exists(status) && !fs::is_regular_file(status)) {
        return "it is not a regular file";
    }
    if (isPartName(name)) {
        return "such names are those of files in the making; choose another one";
    }
    if (inputFiles().contains(target.string())) {
        return "this run reads that file; choose another name";
    }
    return {};
}

/// Waits until a file or folder is on the disk. Some file systems know no flushing, which is no
/// failure.
std::error_code flush(const std::string& path) {
    const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0) {
        return {errno, std::generic_category()};
    }
    const int error = ::fsync(file) == 0 ? 0 : errno;
    ::close(file);
    return {error == EINVAL || error == ENOTSUP ? 0 : error, std::generic_category()};
}

std::string reasonAtTheEnd(const std::error_code& error) {
    return error == std::errc::no_such_file_or_directory
               ? "somebody has removed what was written so far, or its folder"
               : error.message();
}

} // namespace

PartFile::PartFile(std::string destination, const Tell& tell)
    : m_destination(std::move(destination)), m_target(followed(m_destination).string()) {
    if (const std::string obstacle = obstacleAt(m_target); !obstacle.empty()) {
        throw cannotWrite(m_destination, obstacle);
    }
    for (const std::string& name : removeLeftovers(m_target)) {
        tell("Removed " + name + ", which a run that was killed had left.");
    }
    try {
        m_scratch = std::make_unique<ScratchFile>(m_target);
    } catch (const std::system_error& error) {
        throw cannotWrite(m_destination, error.code().message());
    }
}

std::string PartFile::namingDestination(std::string message) const {
    std::size_t at = 0;
    while ((at = message.find(path(), at)) != std::string::npos) {
        message.replace(at, path().size(), m_destination);
        at += m_destination.size();
    }
    return message;
}

void PartFile::commit() {
    if (const std::string obstacle = obstacleAt(m_target); !obstacle.empty()) {
        throw cannotWrite(m_destination, obstacle);
    }
    const std::string folder = folderOf(m_target).string();
    try {
        if (const std::error_code error = flush(path())) {
            throw std::system_error(error);
        }
        m_scratch->moveTo(m_target);
    } catch (const std::system_error& error) {
        throw cannotWrite(m_destination, reasonAtTheEnd(error.code()));
    }
    // The file stands at its name now: nothing may fail any more. A folder that cannot be flushed
    // does not take it away.
    flush(folder);
}

} // namespace corvane::host
