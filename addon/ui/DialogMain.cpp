// The key frames and settings that the user and macros work on.
#include "addon/ui/DialogMain.h"

#include "addon/file/KeyFrameFile.h"
#include "addon/shell/HostLock.h"
#include "hostapi/CorHost.h"

namespace corvane::corutiltools {

namespace {

constexpr double defaultFramesPerSecond = 30.0;

} // namespace

int DialogMain::m_dialog = COR_HANDLE_NOT_CREATED;

DialogMain& DialogMain::instance() {
    static DialogMain theInstance;
    return theInstance;
}

bool DialogMain::okToLaunch() {
    HostLock const lock;
    return CorUtilFrameGetCount() >= 1 && CorUtilFrameGetPlotType() == PlotType_Cartesian3D;
}

DialogMain::DialogMain()
    : m_settings{.timeOptions = {.animateTime = false,
                                 .operation = TimeAnimationOperation_Forward,
                                 .numCycles = 1},
                 .destination = Destination_OnScreen,
                 .animateStreamtraces = false,
                 .fadeIn = false,
                 .fadeOut = false},
      m_currentFile("animation", KeyFrameFile::m_fileNameExtension, "Key Frame Animation") {
    HostLock const lock;
    toolbox::StyleValue("ExportSetup").set(defaultFramesPerSecond, "AnimationSpeed");
}

bool DialogMain::isVisible() const {
    return m_dialog != COR_HANDLE_NOT_CREATED;
}

ListModelKeyFrame& DialogMain::model() {
    return m_model;
}

Settings_s const& DialogMain::settings() const {
    return m_settings;
}

CurrentFileManager& DialogMain::currentFile() {
    return m_currentFile;
}

void DialogMain::applySettings(Settings_s const& settings) {
    m_settings = settings;
}

void DialogMain::applyDataModel(ListModelKeyFrame const& model) {
    m_model.setDataList(model.dataList());
}

void DialogMain::onSettingsFileRead(std::string const& fileName) {
    m_currentFile.setFileName(fileName);
}

} // namespace corvane::corutiltools
