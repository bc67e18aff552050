// The commands that add-ons offer to macros, by name.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace corvane::host {

/// Runs one add-on command, behind the guard of Session::callAddOn. Nothing: it
/// succeeded; else what went wrong.
using AddOnCommand = std::function<std::optional<std::string>(const std::string& command)>;

class AddOnCommands {
public:
    /// False: the name is taken or empty.
    bool add(const std::string& macroName, AddOnCommand command);
    const AddOnCommand* find(const std::string& macroName) const; ///< exact name
    std::vector<std::string> names() const;

private:
    std::map<std::string, AddOnCommand> m_commands;
};

} // namespace corvane::host
