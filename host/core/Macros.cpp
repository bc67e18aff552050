// Keeps add-on commands and recorded lines.
#include "host/core/Macros.h"

#include "host/core/MacroText.h"
#include "host/core/MacroVariables.h"

#include <utility>

namespace corvane::host {

bool AddOnCommands::add(const std::string& macroName, AddOnCommand command) {
    return !macroName.empty() && m_commands.try_emplace(macroName, std::move(command)).second;
}

const AddOnCommand* AddOnCommands::find(const std::string& macroName) const {
    const auto found = m_commands.find(macroName);
    return found == m_commands.end() ? nullptr : &found->second;
}

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
