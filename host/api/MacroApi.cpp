// Macro commands of add-ons, and recording.
#include "hostapi/CorMacro.h"

#include "host/api/AddOnMemory.h"
#include "host/api/Arguments.h"
#include "host/api/TracedCall.h"
#include "host/core/base/Text.h"
#include "host/core/macro/MacroText.h"

#include <optional>

using namespace corvane::host;

namespace {

/// What went wrong, which may be empty, or nothing.
std::optional<std::string> runCommand(Session& session, const std::string& macroName,
                                      CorMacroCommandCallback callback,
                                      const std::string& command) {
    std::string copy(trimmedAtEnd(command, " \t\r\n"));
    char* message = nullptr;
    bool succeeded = false;
    const std::string thrown =
        session.callAddOn(ofOwner("the command " + quoted(macroName), libraryOf(callback)),
                          [&] { succeeded = callback(copy.data(), &message) != FALSE; });
    const std::string reported = textOf(message);
    // In the add-on's name: a text that is not the host's is its fault.
    takeBack({"CorUtilStringDealloc", reinterpret_cast<const void*>(callback)}, &message);
    if (thrown.empty() && succeeded) {
        return std::nullopt;
    }
    return thrown.empty() ? reported : thrown;
}

} // namespace

CorBool CorUtilMacroAddCommandCallback(const char* macroName, CorMacroCommandCallback f) {
    const TracedCall call("CorUtilMacroAddCommandCallback", macroName, f);
    return call.answer(false, [&](Session& session) {
        if (!macroName || !f) {
            return call.misuse("an argument is NULL");
        }
        const std::string name = macroName;
        return session.addOnCommands().add(name, [&session, name, f](const std::string& command) {
            return runCommand(session, name, f, command);
        });
    });
}

CorBool CorUtilMacroIsRecordingActive(void) {
    return TracedCall("CorUtilMacroIsRecordingActive").answer(false, [](Host& host) {
        return host.recorder().isRecording();
    });
}

CorBool CorUtilMacroRecordExtCommand(const char* macroName, const char* command) {
    const TracedCall call("CorUtilMacroRecordExtCommand", macroName, command);
    return call.answer(false, [&](Host& host) {
        return macroName && command ? host.recorder().recordAddOnCommand(macroName, command)
                                    : call.misuse("an argument is NULL");
    });
}

CorBool CorUtilMacroRecordRawCommand(const char* line) {
    const TracedCall call("CorUtilMacroRecordRawCommand", line);
    return call.answer(false, [&](Host& host) {
        return line ? host.recorder().recordRaw(line) : call.misuse("line is NULL");
    });
}
