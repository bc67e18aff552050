#include "host/validate/ScratchFolder.h"

#include "host/core/base/HostError.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <system_error>

namespace corvane::validate {

namespace fs = std::filesystem;

ScratchFolder::ScratchFolder() {
    std::error_code error;
    const fs::path temporary = fs::temp_directory_path(error);
    std::string name =
        ((error ? fs::path("/tmp") : temporary) / "corvane-validate-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) {
        throw host::HostError("No folder for temporary files can be made as " + name + ": " +
                              std::strerror(errno) +
                              ". Let TMPDIR name a folder that can be written to.");
    }
    m_path = name;
}

ScratchFolder::~ScratchFolder() {
    std::error_code ignored;
    fs::remove_all(m_path, ignored);
}

} // namespace corvane::validate
