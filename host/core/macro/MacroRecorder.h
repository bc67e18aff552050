// Keeps the lines of a macro while it is being recorded.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace corvane::host {

/// While it is on, keeps the lines of a macro in order.
class MacroRecorder {
public:
    void start();
    std::vector<std::string> stop(); ///< what was recorded, up to now
    bool isRecording() const { return m_recording; }

    /// False, and nothing kept, while not recording.
    bool recordRaw(const std::string& line);
    /// As $!EXTCOMMAND "name" "command", quoted so that any text survives.
    bool recordAddOnCommand(const std::string& macroName, const std::string& command);

    /// How something is now. Takes the place of the line before when that was recorded by this too
    /// and begins with the same command.
    void recordState(const std::string& line);

    const std::vector<std::string>& lines(); ///< up to now

    /// Called when a recording has begun.
    std::function<void()> onStart;
    /// Called before a line is kept or lines are given away, so that what happened without a
    /// command can be recorded in its place.
    std::function<void()> onCatchUp;
    /// Called when the command of an add-on has been kept, which does again what it did.
    std::function<void()> onAddOnCommand;

private:
    void catchUp();

    bool m_recording = false;
    bool m_endsWithState = false;
    std::vector<std::string> m_lines;
};

} // namespace corvane::host
