// Keeps the lines of a macro while it is being recorded.
#pragma once

#include <string>
#include <vector>

namespace corvane::host {

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
