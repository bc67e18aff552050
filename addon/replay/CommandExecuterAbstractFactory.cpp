// Makes the object that carries out a macro command.
#include "addon/replay/CommandExecuterAbstractFactory.h"

#include "addon/engine/Animate.h"
#include "addon/model/ListModelKeyFrame.h"
#include "addon/ui/DialogMain.h"
#include "addon/ui/OpenSettingsFile.h"

namespace corvane::corutiltools {

std::unique_ptr<CommandExecuterAbstract>
CommandExecuterAbstractFactory::getMacroExecuter(Command_e command) {
    switch (command) {
    case Command_OpenSettingsFile:
        return std::make_unique<CommandExecuterOpenSettings>();
    case Command_Animate:
        return std::make_unique<CommandExecuterAnimate>();
    }
    return nullptr;
}

void CommandExecuterAbstractFactory::CommandExecuterOpenSettings::executeCommand(
    const std::vector<std::pair<Parameter_e, std::string>>& parameters) {
    std::string fileName;
    getRequiredParameter(Parameter_FileName, parameters, fileName);
    DialogMain& dialog = DialogMain::instance();
    ListModelKeyFrame model;
    Settings_s settings = dialog.settings();
    OpenSettingsFile(fileName, model, settings);
    dialog.applySettings(settings);
    dialog.applyDataModel(model);
}

void CommandExecuterAbstractFactory::CommandExecuterAnimate::executeCommand(
    const std::vector<std::pair<Parameter_e, std::string>>& parameters) {
    Destination_e destination{};
    getRequiredParameter(Parameter_AnimationDestination, parameters, destination);
    DialogMain& dialog = DialogMain::instance();
    Settings_s settings = dialog.settings();
    settings.destination = destination;
    dialog.applySettings(settings);
    const std::vector<KeyFrame_s>& keyFrames = dialog.model().dataList();
    Animate(keyFrames, 0, keyFrames.size(), settings, MacroOption_Record);
}

} // namespace corvane::corutiltools
