#include "host/scene/mesh/KnownFiles.h"

#include <algorithm>
#include <sys/stat.h>
#include <utility>

namespace corvane::scene {

std::optional<FileState> fileState(const std::string& path) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) {
        return std::nullopt;
    }
    return FileState{status.st_dev, status.st_ino, static_cast<std::uint64_t>(status.st_size),
                     status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
}

bool KnownFiles::has(const std::string& name) const {
    const std::lock_guard lock(m_mutex);
    const auto found = m_known.find(name);
    return found != m_known.end() && std::ranges::all_of(found->second, [](const auto& file) {
               return file.second && fileState(file.first) == file.second;
           });
}

void KnownFiles::add(const std::string& name, FileStates states) {
    const std::lock_guard lock(m_mutex);
    m_known.insert_or_assign(name, std::move(states));
}

} // namespace corvane::scene
