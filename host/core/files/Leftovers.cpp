#include "host/core/files/Leftovers.h"

#include "host/core/files/Folder.h"
#include "host/core/files/PartName.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <memory>

namespace corvane::host {

namespace {

namespace fs = std::filesystem;

/// Holds the file open, and with it the lock.
class OpenFile {
public:
    /// Follows no link, and waits for nobody at the other end of a pipe.
    explicit OpenFile(const fs::path& path)
        : m_file(::open(path.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC)) {}
    ~OpenFile() {
        if (m_file >= 0) {
            ::close(m_file);
        }
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    bool lock() const { return m_file >= 0 && ::flock(m_file, LOCK_EX | LOCK_NB) == 0; }
    /// Whether this is the file that stands at the path now.
    bool standsAt(const fs::path& path) const {
        struct stat opened {};
        struct stat found {};
        return ::fstat(m_file, &opened) == 0 && ::lstat(path.c_str(), &found) == 0 &&
               opened.st_dev == found.st_dev && opened.st_ino == found.st_ino;
    }

private:
    int m_file;
};

/// Films are made picture by picture, in folders that hold thousands: a path for each of them would
/// take longer than a picture.
std::vector<std::string> namesIn(const fs::path& folder, const PartName& name) {
    const std::unique_ptr<DIR, int (*)(DIR*)> open(::opendir(folder.c_str()), &::closedir);
    std::vector<std::string> names;
    while (open != nullptr) {
        const dirent* const entry = ::readdir(open.get());
        if (entry == nullptr) {
            break;
        }
        if (name.matches(entry->d_name)) {
            names.emplace_back(entry->d_name);
        }
    }
    return names;
}

bool isOwnRegularFile(const fs::path& path) {
    struct stat status {};
    return ::lstat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) &&
           status.st_uid == ::geteuid();
}

/// A run that goes on keeps its lock; one that has just ended has given the file its own name.
bool removeIfLeft(const fs::path& path) {
    if (!isOwnRegularFile(path)) {
        return false;
    }
    const OpenFile file(path);
    return file.lock() && file.standsAt(path) && ::unlink(path.c_str()) == 0;
}

} // namespace

std::vector<std::string> removeLeftovers(const std::string& destination) {
    const fs::path folder = folderOf(destination);
    const PartName name(fs::path(destination).filename().string(), longestNameIn(folder));
    std::vector<std::string> removed;
    for (const std::string& found : namesIn(folder, name)) {
        if (removeIfLeft(folder / found)) {
            removed.push_back(found);
        }
    }
    return removed;
}

} // namespace corvane::host
