// Macro commands of add-ons, and recording.
#include "hostapi/CorMacro.h"

#include "host/api/AddOnMemory.h"
#include "host/api/Arguments.h"
#include "host/api/TracedCall.h"
#include "host/core/macro/MacroText.h"

#include <optional>

using namespace corvane::host;

namespace {

std::string withoutTrailingBlanks(const std::string& text) {
    return text.substr(0, text.find_last_not_of(" \t\r\n") + 1);
}

/// What went wrong, which may be empty, or nothing.
std::optional<std::string> runCommand(Application& app, const std::string& macroName,
                                      CorMacroCommandCallback callback,
                                      const std::string& command) {
    std::string copy = withoutTrailingBlanks(command);
    char* message = nullptr;
    bool succeeded = false;
    const std::string thrown =
        app.callAddOn(ofOwner("the command " + quoted(macroName), libraryOf(callback)),
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
    return call.answer(false, [&](Application& app) {
        if (!macroName || !f) {
            return call.misuse("an argument is NULL");
        }
        const std::string name = macroName;
        return app.addOnCommands().add(name, [&app, name, f](const std::string& command) {
            return runCommand(app, name, f, command);
        });
    });
}

CorBool CorUtilMacroIsRecordingActive(void) {
    return TracedCall("CorUtilMacroIsRecordingActive").answer(false, [](Application& app) {
        return app.recorder().isRecording();
    });
}

CorBool CorUtilMacroRecordExtCommand(const char* macroName, const char* command) {
    const TracedCall call("CorUtilMacroRecordExtCommand", macroName, command);
    return call.answer(false, [&](Application& app) {
        return macroName && command ? app.recorder().recordAddOnCommand(macroName, command)
                                    : call.misuse("an argument is NULL");
    });
}

CorBool CorUtilMacroRecordRawCommand(const char* line) {
    const TracedCall call("CorUtilMacroRecordRawCommand", line);
    return call.answer(false, [&](Application& app) {
        return line ? app.recorder().recordRaw(line) : call.misuse("line is NULL");
    });
}
