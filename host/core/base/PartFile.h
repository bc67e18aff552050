// A file that appears under its name only when it is complete.
#pragma once

#include <string>

namespace corvane::host {

/// Something else writes to path(), which stands beside the destination and ends in ".part".
/// Unless commit() was called the destructor removes it, and what stood at the destination stays.
class PartFile {
public:
    /// Throws HostError when the folder does not exist or cannot be written to, or when the
    /// destination is a folder.
    explicit PartFile(std::string destination);
    ~PartFile();
    PartFile(const PartFile&) = delete;
    PartFile& operator=(const PartFile&) = delete;

    const std::string& path() const { return m_path; }
    const std::string& destination() const { return m_destination; }
    /// The message with the destination in the place of path(), which means nothing to the user:
    /// whoever writes the file knows no other name for it.
    std::string namingDestination(std::string message) const;
    /// Flushes the file to the disk and renames it. Throws HostError; the part is removed then.
    void commit();

private:
    std::string m_destination;
    std::string m_path;
    bool m_pending = true;
};

} // namespace corvane::host
