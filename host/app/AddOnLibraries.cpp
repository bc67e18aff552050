// Loads add-ons.
#include "host/app/AddOnLibraries.h"

#include "host/app/Options.h"
#include "host/core/base/HostError.h"
#include "host/core/session/AddOnLoader.h"

#include <algorithm>
#include <exception>
#include <filesystem>

namespace corvane::app {

namespace fs = std::filesystem;

namespace {

constexpr const char* ownAddOn = "libKeyFrameAnimation.so";

/// Beside the program, in the build tree as well as where it is installed.
std::string ownLibrary() {
    const fs::path program = fs::read_symlink("/proc/self/exe");
    return (program.parent_path().parent_path() / "lib" / ownAddOn).string();
}

bool isOwn(const std::string& library) {
    return fs::path(library).filename() == ownAddOn;
}

} // namespace

bool loadAddOns(host::Session& session, const Options& options,
                const std::function<void(const std::string&)>& tell) {
    bool haveStarted = true;
    if (std::none_of(options.addOns.begin(), options.addOns.end(), isOwn)) {
        try {
            haveStarted = host::loadAddOn(session, ownLibrary());
        } catch (const std::exception& error) {
            tell(host::messageOf(error));
        }
    }
    for (const std::string& library : options.addOns) {
        haveStarted = host::loadAddOn(session, library) && haveStarted;
    }
    return haveStarted;
}

} // namespace corvane::app
