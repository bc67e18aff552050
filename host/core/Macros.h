// Add-on commands by name, and the recording of macros.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace corvane::host {

/// Runs one add-on command, behind the exception wall of Application::callAddOn. Nothing: it
/// succeeded; else what went wrong.
using AddOnCommand = std::function<std::optional<std::string>(const std::string& command)>;

class AddOnCommands {
public:
    /// False: the name is taken or empty.
    bool add(const std::string& macroName, AddOnCommand command);
    const AddOnCommand* find(const std::string& macroName) const; ///< exact name

private:
    std::map<std::string, AddOnCommand> m_commands;
};

/// While it is on, keeps the lines of a macro in order.
class MacroRecorder {
public:
    void start();
    std::vector<std::string> stop(); ///< what was recorded
    bool isRecording() const { return m_recording; }

    /// False, and nothing kept, while not recording.
    bool recordRaw(const std::string& line);
    /// As $!EXTCOMMAND "name" "command", quoted so that any text survives.
    bool recordAddOnCommand(const std::string& macroName, const std::string& command);

    const std::vector<std::string>& lines() const { return m_lines; }

private:
    bool m_recording = false;
    std::vector<std::string> m_lines;
};

} // namespace corvane::host
