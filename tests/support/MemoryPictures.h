// Picture files, kept in memory.
#pragma once

#include "host/core/ports/Ports.h"

#include <string>
#include <vector>

namespace corvane::test {

/// The file itself holds nothing but the size, since a host renames what it had written.
class MemoryPictures : public host::PictureFiles {
public:
    void write(const host::Picture& picture, const std::string& path) override;

    const std::vector<host::Picture>& written() const { return m_written; }

private:
    std::vector<host::Picture> m_written;
};

} // namespace corvane::test
