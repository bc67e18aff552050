// Picture files, kept in memory.
#pragma once

#include "host/core/ports/Ports.h"

#include <string>
#include <utility>
#include <vector>

namespace corvane::memory {

/// The file itself holds nothing but the size, since a host renames what it had written.
class MemoryPictures : public host::PictureFiles {
public:
    void write(const host::Picture& picture, const std::string& path) override;

    /// The next picture cannot be written: HostError with this message.
    void failNext(std::string message) { m_failure = std::move(message); }

    const std::vector<host::Picture>& written() const { return m_written; }

private:
    std::vector<host::Picture> m_written;
    std::string m_failure; ///< empty: none
};

} // namespace corvane::memory
