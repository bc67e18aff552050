// Keeps recorded lines.
#include "host/core/macro/MacroRecorder.h"

#include "host/core/macro/MacroText.h"
#include "host/core/macro/MacroVariables.h"

#include <utility>

namespace corvane::host {

void MacroRecorder::start() {
    m_lines.clear();
    m_recording = true;
}

std::vector<std::string> MacroRecorder::stop() {
    m_recording = false;
    return std::exchange(m_lines, {});
}

bool MacroRecorder::recordRaw(const std::string& line) {
    if (m_recording) {
        m_lines.push_back(line);
    }
    return m_recording;
}

bool MacroRecorder::recordAddOnCommand(const std::string& macroName, const std::string& command) {
    return recordRaw("$!EXTCOMMAND " + quoted(MacroVariables::escaped(macroName)) + " " +
                     quoted(MacroVariables::escaped(command)));
}

} // namespace corvane::host
