// Keeps the lines of a macro while it is being recorded.
#pragma once

#include <string>
#include <vector>

namespace corvane::host {

/// Told what happens to a recording, so that what changed without a command can be recorded in its
/// place.
class RecordingListener {
public:
    virtual ~RecordingListener() = default;
    virtual void recordingStarted() = 0;
    /// A line is about to be kept, or lines to be given away.
    virtual void recordingCatchesUp() = 0;
    /// The command of an add-on has been kept, which does again what it did.
    virtual void addOnCommandRecorded() = 0;
};

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

    /// There is one at most, and it takes itself away (null) before it ends.
    void setListener(RecordingListener* listener) { m_listener = listener; }

private:
    void catchUp();

    RecordingListener* m_listener = nullptr;
    bool m_recording = false;
    bool m_endsWithState = false;
    std::vector<std::string> m_lines;
};

} // namespace corvane::host
