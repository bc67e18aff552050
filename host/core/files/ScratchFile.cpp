#include "host/core/files/ScratchFile.h"

#include "host/core/files/Folder.h"
#include "host/core/files/PartName.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>
#include <utility>

namespace corvane::host {

namespace {

/// A folder with so many of them is no place to go on trying.
constexpr int mostNumbers = 1000;

std::system_error failure(int error) {
    return {error, std::generic_category()};
}

/// Whoever removes what killed runs have left may have been faster than the lock. Where there are
/// no locks, nobody removes anything.
bool isKept(int file) {
    if (::flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
        return false;
    }
    struct stat status {};
    return ::fstat(file, &status) == 0 && status.st_nlink > 0;
}

} // namespace

ScratchFile::ScratchFile(const std::string& destination) {
    const std::filesystem::path folder = folderOf(destination);
    const PartName name(std::filesystem::path(destination).filename().string(),
                        longestNameIn(folder));
    for (int number = 1; number <= mostNumbers; ++number) {
        if (make((folder / name.numbered(number)).string())) {
            return;
        }
    }
    throw failure(EEXIST);
}

/// False when the name is taken.
bool ScratchFile::make(std::string path) {
    const int file = ::open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (file < 0 && errno == EEXIST) {
        return false;
    }
    if (file < 0) {
        throw failure(errno);
    }
    if (!isKept(file)) {
        ::close(file);
        return false;
    }
    m_file = file;
    m_path = std::move(path);
    return true;
}

ScratchFile::~ScratchFile() {
    if (!m_isMoved) {
        ::unlink(m_path.c_str());
    }
    ::close(m_file);
}

void ScratchFile::moveTo(const std::string& destination) {
    if (std::rename(m_path.c_str(), destination.c_str()) != 0) {
        throw failure(errno);
    }
    m_isMoved = true;
}

} // namespace corvane::host
