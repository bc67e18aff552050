// A file of this run alone, beside the one that it is to become.
#pragma once

#include <string>

namespace corvane::host {

/// Made under a name that nothing had, and locked as long as this object lives, whoever else writes
/// to its path: so others see that its run goes on. The destructor removes it unless it was moved.
class ScratchFile {
public:
    /// Throws std::system_error when the folder of the destination takes no such file.
    explicit ScratchFile(const std::string& destination);
    ~ScratchFile();
    ScratchFile(const ScratchFile&) = delete;
    ScratchFile& operator=(const ScratchFile&) = delete;

    const std::string& path() const { return m_path; }
    /// It takes the place of what stands there. Throws std::system_error.
    void moveTo(const std::string& destination);

private:
    bool make(std::string path);

    std::string m_path;
    int m_file = -1; ///< holds the lock
    bool m_isMoved = false;
};

} // namespace corvane::host
