// Opens a key frame file for the user or a macro.
#include "addon/ui/OpenSettingsFile.h"
#include "addon/file/KeyFrameFile.h"
#include "addon/macro/MacroManager.h"
#include "addon/ui/DialogMain.h"

namespace corvane::corutiltools {

void OpenSettingsFile(const std::string& fileName, ListModelKeyFrame& model, Settings_s& settings) {
    KeyFrameFile().readFile(fileName, settings, model);
    DialogMain::instance().onSettingsFileRead(fileName);
    MacroManager::instance().recordCommand(Command_OpenSettingsFile,
                                           {{Parameter_FileName, fileName}});
}

} // namespace corvane::corutiltools
