// A folder for what add-ons write while they are tried.
#pragma once

#include <string>

namespace corvane::validate {

/// Empty, and under a name of its own; gone with all that is in it when this is destroyed.
class ScratchFolder {
public:
    ScratchFolder(); ///< throws a HostError
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const std::string& path() const { return m_path; }

private:
    std::string m_path;
};

} // namespace corvane::validate
