// A file that appears under its name only when it is complete.
#pragma once

#include "host/core/files/ScratchFile.h"

#include <functional>
#include <memory>
#include <string>

namespace corvane::host {

/// Something else writes to path(), a file of this run alone beside the destination. Unless
/// commit() was called the destructor removes it, and what stood at the destination stays. Several
/// runs may write to one destination: each makes a whole file, and the last to complete it wins. A
/// destination that is a link stands for what it names.
class PartFile {
public:
    /// Told what was done besides: left-overs of killed runs are removed.
    using Tell = std::function<void(const std::string&)>;

    /// Throws HostError when the destination cannot be written to: its folder does not exist or
    /// takes no files, it is no regular file, or this process reads it.
    explicit PartFile(
        std::string destination, const Tell& tell = [](const std::string&) {});

    const std::string& path() const { return m_scratch->path(); }
    const std::string& destination() const { return m_destination; }
    /// The message with the destination in the place of path(), which means nothing to the user:
    /// whoever writes the file knows no other name for it.
    std::string namingDestination(std::string message) const;
    /// Flushes the file to the disk and gives it its name. Throws HostError, also when the
    /// destination has become one that cannot be written to.
    void commit();

private:
    std::string m_destination;              ///< as it was given
    std::string m_target;                   ///< what it names
    std::unique_ptr<ScratchFile> m_scratch; ///< never null
};

} // namespace corvane::host
