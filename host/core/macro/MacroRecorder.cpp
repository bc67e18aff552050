// Keeps recorded lines.
#include "host/core/macro/MacroRecorder.h"

#include "host/core/macro/MacroText.h"
#include "host/core/macro/MacroVariables.h"

#include <utility>

namespace corvane::host {

void MacroRecorder::start() {
    m_lines.clear();
    m_endsWithState = false;
    m_recording = true;
    if (m_listener != nullptr) {
        m_listener->recordingStarted();
    }
}

std::vector<std::string> MacroRecorder::stop() {
    catchUp();
    m_recording = false;
    return std::exchange(m_lines, {});
}

const std::vector<std::string>& MacroRecorder::lines() {
    catchUp();
    return m_lines;
}

void MacroRecorder::catchUp() {
    if (m_recording && m_listener != nullptr) {
        m_listener->recordingCatchesUp();
    }
}

bool MacroRecorder::recordRaw(const std::string& line) {
    catchUp();
    if (m_recording) {
        m_lines.push_back(line);
        m_endsWithState = false;
    }
    return m_recording;
}

void MacroRecorder::recordState(const std::string& line) {
    if (!m_recording) {
        return;
    }
    const std::string command = line.substr(0, line.find(' ') + 1);
    if (m_endsWithState && m_lines.back().starts_with(command)) {
        m_lines.pop_back();
    }
    m_lines.push_back(line);
    m_endsWithState = true;
}

bool MacroRecorder::recordAddOnCommand(const std::string& macroName, const std::string& command) {
    const bool isKept = recordRaw("$!EXTCOMMAND " + quoted(MacroVariables::escaped(macroName)) +
                                  " " + quoted(MacroVariables::escaped(command)));
    if (isKept && m_listener != nullptr) {
        m_listener->addOnCommandRecorded();
    }
    return isKept;
}

} // namespace corvane::host
