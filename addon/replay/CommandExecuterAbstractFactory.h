// Makes the object that carries out a macro command.
#pragma once

#include "addon/replay/CommandExecuterAbstract.h"

#include <memory>

namespace corvane::corutiltools {

class CommandExecuterAbstractFactory {
public:
    class CommandExecuterOpenSettings;
    class CommandExecuterAnimate;

    // Null for a value that is no command.
    static std::unique_ptr<CommandExecuterAbstract> getMacroExecuter(Command_e command);
};

// Reads the key frame file named by the macro into the main dialog.
class CommandExecuterAbstractFactory::CommandExecuterOpenSettings : public CommandExecuterAbstract {
public:
    // An error leaves the dialog as it was.
    void
    executeCommand(const std::vector<std::pair<Parameter_e, std::string>>& parameters) override;
};

// Plays the main dialog's key frames to the destination named by the macro.
class CommandExecuterAbstractFactory::CommandExecuterAnimate : public CommandExecuterAbstract {
public:
    // The dialog keeps the destination, whatever becomes of the flight.
    void
    executeCommand(const std::vector<std::pair<Parameter_e, std::string>>& parameters) override;
};

} // namespace corvane::corutiltools
