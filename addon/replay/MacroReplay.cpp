// Carries out the add-on's commands when the host replays them.
#include "addon/base/AddOnName.h"
#include "addon/base/HostLock.h"
#include "addon/macro/MacroManager.h"
#include "addon/replay/CommandExecuterAbstract.h"
#include "addon/replay/CommandExecuterAbstractFactory.h"

#include <cstddef>
#include <cstdio>
#include <cstring>

namespace corvane::corutiltools {

namespace {

// Room for the name, " error:\n" and the end of the string. One more than these need: hosts know
// this size from their traces.
constexpr std::size_t fixedErrorLength = 29;

void handErrorToHost(const char* message, char** errorMessage) {
    const HostLock lock;
    const std::size_t length = std::strlen(message) + fixedErrorLength;
    char* const text = CorUtilStringAlloc(static_cast<long>(length));
    if (!text) {
        return;
    }
    std::snprintf(text, length, "%s error:\n%s", AddOnName, message);
    *errorMessage = text;
}

} // namespace

void MacroManager::registerCallback() {
    CorUtilMacroAddCommandCallback(AddOnName, corvaneCallback);
}

CorBool MacroManager::corvaneCallback(char* commandString, char** errorMessage) {
    try {
        instance().executeCommand(commandString);
        return TRUE;
    } catch (const KeyFrameError& error) {
        handErrorToHost(error.what(), errorMessage);
        return FALSE;
    }
}

void MacroManager::executeCommand(const std::string& commandString) const {
    Command_e command{};
    std::vector<std::pair<Parameter_e, std::string>> parameters;
    m_commandManager.parseMacroCommandString(commandString, command, parameters);
    CommandExecuterAbstractFactory::getMacroExecuter(command)->executeCommand(parameters);
}

} // namespace corvane::corutiltools
