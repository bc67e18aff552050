#include "host/core/session/LibraryTrial.h"

#include "host/core/base/HostError.h"
#include "host/core/process/Helper.h"
#include "host/core/process/ProcessServer.h"

#include <dlfcn.h>

#include <chrono>
#include <cstring>
#include <filesystem>

namespace corvane::host {

namespace {

/// Not what a library that calls exit() is likely to say.
constexpr int exitAfterTrial = 87;

int load(const TaskInput& input) {
    ::dlopen(input.arguments.at(0).c_str(), RTLD_NOW | RTLD_LOCAL);
    return exitAfterTrial;
}

const Task loading("load a library", load);

/// A helper works in the folder that the program was started in.
std::string pathForHelper(const std::string& path) {
    return path.find('/') == std::string::npos ? path : std::filesystem::absolute(path).string();
}

std::string describe(const std::optional<HelperEnd>& end) {
    if (!end) {
        return "it does not come to an end when it is loaded";
    }
    if (!end->isExit()) {
        return std::string("loading it ends a program with a signal (") + ::strsignal(end->signal) +
               ")";
    }
    return end->exitCode == exitAfterTrial ? "" : "it ends a program that loads it";
}

} // namespace

std::string harmOfLoading(const std::string& path) {
    constexpr unsigned cpuSeconds = 30;
    constexpr std::chrono::minutes patience(5);
    if (!ProcessServer::isThere()) {
        return "";
    }
    try {
        Helper helper(loading, {pathForHelper(path)}, {.cpuSeconds = cpuSeconds});
        return describe(helper.waitFor(patience));
    } catch (const HostError&) {
        return "";
    }
}

} // namespace corvane::host
