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
    Command_e command, const std::vector<std::pair<Parameter_e, std::string>>& parameters) {
    // Locked twice on purpose: hosts are used to a command being recorded at this depth.
    const HostLock outerLock;
    const HostLock innerLock;
    if (!CorUtilMacroIsRecordingActive()) {
        return;
    }
    const std::string text = m_commandManager.buildMacroCommandString(command, parameters);
    CorUtilMacroRecordExtCommand(AddOnName, text.c_str());
}

} // namespace corvane::corutiltools
