// One command of the macro language on its way to be carried out.
#pragma once

#include "host/core/macro/MacroWords.h"
#include "host/core/session/Session.h"

#include <string>
#include <vector>

namespace corvane::host {

class MacroPlayer;

struct MacroCall {
    Session& session;
    MacroPlayer& player;                   ///< that carries it out
    const std::vector<std::string>& words; ///< behind the command
    const std::string& folder;             ///< of the macro; file names are relative to it

    /// The name of a file as it can be opened.
    std::string path(const std::string& fileName) const;
};

/// For commands about the active frame and for those of add-ons, which would lose it.
void expectNoAnimation(const Session& session);

} // namespace corvane::host
