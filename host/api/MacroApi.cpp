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

/// The text of an error that an add-on allocated; freed with the object.
class AddOnMessage {
public:
    explicit AddOnMessage(CorMacroCommandCallback callback) : m_callback(callback) {}
    /// In the add-on's name: a text that is not the host's is its fault.
    ~AddOnMessage() {
        takeBack({"CorUtilStringDealloc", reinterpret_cast<const void*>(m_callback)}, &m_text);
    }
    AddOnMessage(const AddOnMessage&) = delete;
    AddOnMessage& operator=(const AddOnMessage&) = delete;

    char** room() { return &m_text; }
    std::string text() const { return textOf(m_text); }

private:
    CorMacroCommandCallback m_callback;
    char* m_text = nullptr;
};

/// What went wrong, which may be empty, or nothing.
std::optional<std::string> runCommand(Session& session, const std::string& macroName,
                                      CorMacroCommandCallback callback,
                                      const std::string& command) {
    std::string copy(trimmedAtEnd(command, " \t\r\n"));
    AddOnMessage message(callback);
    bool succeeded = false;
    const std::string thrown =
        session.callAddOn(ofOwner("the command " + quoted(macroName), libraryOf(callback)),
                          [&] { succeeded = callback(copy.data(), message.room()) != FALSE; });
    if (thrown.empty() && succeeded) {
        return std::nullopt;
    }
    return thrown.empty() ? message.text() : thrown;
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
