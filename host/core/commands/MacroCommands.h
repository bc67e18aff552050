// The macro language: one table, which the player, the messages and the reference page read.
#pragma once

#include "host/core/commands/MacroCall.h"

#include <string>
#include <vector>

namespace corvane::host {

/// How a command that was carried out goes into a macro that is being recorded.
enum class Recorded {
    AsWritten,
    WithFileNames, ///< all words are names of files, which become absolute
    WithFileName,  ///< the first word is
    WithMovieName, ///< the value is, if it is that of ExportFName
    ByOthers, ///< add-ons record their commands, included macros are recorded line by line, and
              ///< what a change of the work area leads to is noticed
};

/// One command of the macro language.
struct MacroCommand {
    std::string name;                   ///< READDATA
    std::vector<std::string> arguments; ///< its forms: "FILE" ["FILE" ...]
    std::string purpose;                ///< in sentences, for the reference page
    std::string example;                ///< one line that works
    /// Throws HostError with the cause.
    void (*run)(const MacroCall& call);
    Recorded recorded = Recorded::AsWritten;
};

/// The line that a macro being recorded gets for a command that was carried out; empty for none.
std::string recordedLine(const MacroCommand& command, const MacroCall& call);

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
void sizeWorkArea(const MacroCall& call);
void redraw(const MacroCall& call);
void setUpExport(const MacroCall& call);
void exportPicture(const MacroCall& call);
void runAddOnCommand(const MacroCall& call);
void includeMacro(const MacroCall& call);
void setVariable(const MacroCall& call);

} // namespace corvane::host
