// Picture files, kept in memory.
#include "host/memory/MemoryPictures.h"

#include "host/core/base/HostError.h"

#include <fstream>

namespace corvane::memory {

void MemoryPictures::write(const host::Picture& picture, const std::string& path) {
    if (!m_failure.empty()) {
        throw host::HostError(std::exchange(m_failure, {}));
    }
    std::ofstream(path) << picture.width << " x " << picture.height;
    m_written.push_back(picture);
}

} // namespace corvane::memory
