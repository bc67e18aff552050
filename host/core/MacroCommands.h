// The macro language: one table, which the player, the messages and the reference page read.
#pragma once

#include "host/core/MacroWords.h"

#include <string>
#include <vector>

namespace corvane::host {

/// One command of the macro language.
struct MacroCommand {
    std::string name;                   ///< READDATA
    std::vector<std::string> arguments; ///< its forms: "FILE" ["FILE" ...]
    std::string purpose;                ///< in sentences, for the reference page
    std::string example;                ///< one line that works
    /// Throws std::invalid_argument or HostError with the cause.
    void (*run)(const MacroCall& call);
};

/// The whole language, in the order in which it is explained.
const std::vector<MacroCommand>& macroCommands();

/// Null without such a command; letter case is ignored.
const MacroCommand* findMacroCommand(const std::string& name);

// What the commands do, by topic.
void readData(const MacroCall& call);
void setSolutionTime(const MacroCall& call);
void setStyle(const MacroCall& call);
void setPlotType(const MacroCall& call);
void changeView(const MacroCall& call);
void changeFrames(const MacroCall& call);
void redraw(const MacroCall& call);
void setUpExport(const MacroCall& call);
void exportPicture(const MacroCall& call);
void runAddOnCommand(const MacroCall& call);
void includeMacro(const MacroCall& call);
void setVariable(const MacroCall& call);

} // namespace corvane::host
