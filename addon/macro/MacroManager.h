// Joins the add-on's commands to the host's macros.
#pragma once

#include "addon/base/KeyFrameError.h"
#include "addon/macro/MacroCommandManager.h"
#include "addon/macro/MacroKeywords.h"
#include "hostapi/CorHost.h"

#include <string>
#include <utility>
#include <vector>

namespace corvane::corutiltools {

// One for the whole process; it never changes once it is made.
class MacroManager {
public:
    static MacroManager& instance();

    MacroManager(const MacroManager&) = delete;
    MacroManager& operator=(const MacroManager&) = delete;

    // Adds the command to the macro that the host records; without a recording nothing happens.
    // Throws std::out_of_range for a command or parameter without keyword.
    void recordCommand(Command_e command,
                       const std::vector<std::pair<Parameter_e, std::string>>& parameters);

    // Tells the host whom to call for the add-on's commands. To be called once, at load.
    static void registerCallback();

    // Carries out a command that the host replays. On a KeyFrameError answers FALSE and leaves a
    // string for the user in *errorMessage, which the host then owns; when the host has no memory
    // for it, *errorMessage is left as it was. Other exceptions pass to the host.
    static CorBool corvaneCallback(char* commandString, char** errorMessage);

private:
    MacroManager();

    void executeCommand(const std::string& commandString) const;

    MacroCommandManager<Command_e, Parameter_e, KeyFrameError> m_commandManager;
};

} // namespace corvane::corutiltools
