// Loads the libraries of add-ons.
#include "host/core/session/AddOnLoader.h"

#include "host/core/addons/AddOnCaller.h"
#include "host/core/base/HostError.h"
#include "host/core/files/InputFiles.h"
#include "host/core/session/Session.h"

#include <dlfcn.h>
#include <link.h>

#include <filesystem>
#include <utility>

namespace corvane::host {

namespace {

constexpr const char* entryPoint = "InitCorAddOn113";
using EntryPoint = void (*)();

HostError cannotLoad(const std::string& library, const std::string& reason) {
    return HostError("Cannot load the add-on " + library + ": " + reason);
}

std::string loaderError() {
    const char* text = ::dlerror();
    return text != nullptr ? text : "unknown reason";
}

/// A bare name means a file here, if there is one; else the loader looks for it.
std::string loaderPath(const std::string& library) {
    std::error_code error;
    const bool isHere =
        library.find('/') == std::string::npos && std::filesystem::exists(library, error);
    return isHere ? "./" + library : library;
}

/// The loader would wait for whoever writes to a pipe.
void refusePipesAndDevices(const std::string& library) {
    std::error_code error;
    if (std::filesystem::is_other(library, error)) {
        throw cannotLoad(library, "it is not a regular file.");
    }
}

/// Where the loader has found it.
std::string placeOf(void* handle, const std::string& library) {
    const link_map* place = nullptr;
    return ::dlinfo(handle, RTLD_DI_LINKMAP, &place) == 0 ? place->l_name : library;
}

/// Closes the library again unless it was taken.
using Library = std::unique_ptr<void, int (*)(void*)>;

Library open(const std::string& library) {
    refusePipesAndDevices(library);
    Library handle(::dlopen(loaderPath(library).c_str(), RTLD_NOW | RTLD_LOCAL), &::dlclose);
    if (!handle) {
        throw cannotLoad(library, loaderError() + ".");
    }
    inputFiles().add(placeOf(handle.get(), library));
    return handle;
}

} // namespace

void loadAddOn(Session& session, const std::string& library) {
    Library handle = open(library);
    const auto start = reinterpret_cast<EntryPoint>(::dlsym(handle.get(), entryPoint));
    if (start == nullptr) {
        throw cannotLoad(library, std::string("it has no entry point ") + entryPoint +
                                      ", so it is no add-on for this program.");
    }
    if (!session.addOns().keepLibrary(handle.get())) {
        throw cannotLoad(library, "it is loaded already.");
    }
    static_cast<void>(handle.release()); // the session keeps it from here on
    const std::string error = session.callAddOn(
        ofOwner(entryPoint, std::filesystem::path(library).filename().string()), start);
    if (!error.empty()) {
        session.prompts().showError("The add-on " + library + " failed when it started: " + error);
    }
}

} // namespace corvane::host
