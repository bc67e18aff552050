#include "host/core/files/Folder.h"

#include <climits>
#include <unistd.h>

namespace corvane::host {

std::filesystem::path folderOf(const std::filesystem::path& file) {
    const std::filesystem::path folder = file.parent_path();
    return folder.empty() ? std::filesystem::path(".") : folder;
}

std::size_t longestNameIn(const std::filesystem::path& folder) {
    const long longest = ::pathconf(folder.c_str(), _PC_NAME_MAX);
    return longest > 0 ? static_cast<std::size_t>(longest) : NAME_MAX;
}

} // namespace corvane::host
