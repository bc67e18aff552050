// One command of the macro language on its way to be carried out.
#include "host/core/commands/MacroCall.h"

#include <filesystem>

namespace corvane::host {

std::string MacroCall::path(const std::string& fileName) const {
    return (std::filesystem::path(folder) / fileName).string();
}

void expectNoAnimation(const Session& session) {
    if (session.isAnimating()) {
        reject("An animation is running.");
    }
}

} // namespace corvane::host
