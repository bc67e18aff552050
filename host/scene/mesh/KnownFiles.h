// Which files have been found harmless, as long as they do not change.
#pragma once

#include <cstdint>
#include <map>
#include <mutex>
#include <optional>
#include <string>

namespace corvane::scene {

/// By which a file is known again.
struct FileState {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::uint64_t size = 0;
    std::int64_t seconds = 0; ///< of the last change
    std::int64_t nanoseconds = 0;

    friend bool operator==(const FileState&, const FileState&) = default;
};

/// Nothing where there is no such file.
std::optional<FileState> fileState(const std::string& path);

/// By their paths, a file and those that it is made of.
using FileStates = std::map<std::string, std::optional<FileState>>;

/// May be used by several threads.
class KnownFiles {
public:
    /// Whether all files are as they were when they were added under this name.
    bool has(const std::string& name) const;
    void add(const std::string& name, FileStates states);

private:
    mutable std::mutex m_mutex;
    std::map<std::string, FileStates> m_known;
};

} // namespace corvane::scene
