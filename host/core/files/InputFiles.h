// What this process reads, so that no output goes over it.
#pragma once

#include <sys/types.h>

#include <map>
#include <mutex>
#include <set>
#include <string>
#include <utility>

namespace corvane::host {

/// May be used on any thread.
class InputFiles {
public:
    /// A file that is read from now on, or a folder all of whose files are. It need not be there
    /// yet.
    void add(const std::string& path);
    /// Whether the path leads to one of them, however it is spelled: by another name, through links
    /// or from another folder.
    bool contains(const std::string& path) const;

private:
    using Identity = std::pair<dev_t, ino_t>;

    static bool identify(const std::string& path, Identity& identity);
    bool isOneOfThem(const std::string& path) const;

    mutable std::mutex m_mutex;
    std::set<std::string> m_names; ///< without links
    std::map<Identity, std::string> m_nameOf;
};

/// Those of this process.
InputFiles& inputFiles();

} // namespace corvane::host
