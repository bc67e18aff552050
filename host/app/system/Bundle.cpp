#include "host/app/system/Bundle.h"

#include "host/scene/vtk/DrawingTrial.h"

#include <cstdlib>
#include <system_error>
#include <utility>

namespace corvane::app {

namespace fs = std::filesystem;

namespace {

void setVariable(const char* name, const fs::path& value) {
    setenv(name, value.c_str(), 1);
}

/// Users may have set it to what they like better.
void offerVariable(const char* name, const fs::path& value) {
    setenv(name, value.c_str(), 0);
}

/// The launcher of the bundle leads the loader to a C++ library by this variable.
void restoreLibraryPath() {
    constexpr const char* before = "CORVANE_LIBRARY_PATH_BEFORE";
    const char* const value = std::getenv(before);
    if (value == nullptr) {
        return;
    }
    if (*value == '\0') {
        unsetenv("LD_LIBRARY_PATH");
    } else {
        setenv("LD_LIBRARY_PATH", value, 1);
    }
    unsetenv(before);
}

} // namespace

std::optional<Bundle> Bundle::find() {
    std::error_code none;
    const fs::path program = fs::read_symlink("/proc/self/exe", none);
    Bundle bundle(program.parent_path().parent_path());
    if (!none && fs::exists(bundle.driverFile(), none)) {
        return bundle;
    }
    return std::nullopt;
}

std::string Bundle::driverFile() const {
    return m_folder / "lib" / "runtime" / "egl" / "corvane.json";
}

void Bundle::useDriver() const {
    setVariable(scene::driverFilesVariable, driverFile());
    setVariable("LIBGL_DRIVERS_PATH", m_folder / "lib" / "runtime" / "mesa" / "dri");
}

void Bundle::lendFiles() const {
    offerVariable("FONTCONFIG_FILE", m_folder / "share" / "corvane" / "fonts" / "fonts.conf");
    std::error_code unknown;
    constexpr const char* systemsKeyboards = "/usr/share/X11/xkb";
    if (!fs::exists(systemsKeyboards, unknown)) {
        offerVariable("XKB_CONFIG_ROOT", m_folder / "share" / "corvane" / "xkb");
    }
}

void settleIn() {
    restoreLibraryPath();
    if (const auto bundle = Bundle::find()) {
        bundle->lendFiles();
    }
}

} // namespace corvane::app
