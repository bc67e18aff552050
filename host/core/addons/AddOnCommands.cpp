// Keeps add-on commands.
#include "host/core/addons/AddOnCommands.h"

#include <utility>

namespace corvane::host {

bool AddOnCommands::add(const std::string& macroName, AddOnCommand command) {
    return !macroName.empty() && m_commands.emplace(macroName, std::move(command)).second;
}

const AddOnCommand* AddOnCommands::find(const std::string& macroName) const {
    const auto found = m_commands.find(macroName);
    return found == m_commands.end() ? nullptr : &found->second;
}

std::vector<std::string> AddOnCommands::names() const {
    std::vector<std::string> names;
    names.reserve(m_commands.size());
    for (const auto& [name, command] : m_commands) {
        names.push_back(name);
    }
    return names;
}

} // namespace corvane::host
