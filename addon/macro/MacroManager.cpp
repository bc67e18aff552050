// Records the add-on's commands in the host's macros.
#include "addon/macro/MacroManager.h"

#include "addon/base/AddOnName.h"
#include "addon/base/HostLock.h"

namespace corvane::corutiltools {

MacroManager& MacroManager::instance() {
    static MacroManager theInstance;
    return theInstance;
}

MacroManager::MacroManager() : m_commandManager(" ") {}

void MacroManager::recordCommand(
    Command_e command, std::vector<std::pair<Parameter_e, std::string>> const& parameters) {
    // Locked twice on purpose: hosts are used to a command being recorded at this depth.
    HostLock const outerLock;
    HostLock const innerLock;
    if (!CorUtilMacroIsRecordingActive())
        return;
    std::string const text = m_commandManager.buildMacroCommandString(command, parameters);
    CorUtilMacroRecordExtCommand(AddOnName, text.c_str());
}

} // namespace corvane::corutiltools
