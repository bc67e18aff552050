// Where the add-on lies.
#include "host/app/AddOnLibrary.h"

#include "host/app/Options.h"

#include <filesystem>

namespace corvane::app {

namespace fs = std::filesystem;

std::string addOnLibrary(const Options& options) {
    if (!options.addOn.empty()) {
        return options.addOn;
    }
    // Beside the program, in the build tree as well as where it is installed.
    const fs::path program = fs::read_symlink("/proc/self/exe");
    return (program.parent_path().parent_path() / "lib" / "libKeyFrameAnimation.so").string();
}

} // namespace corvane::app
