// The main dialog: its life, and what others hand to it.
#include "addon/ui/DialogMain.h"

#include "addon/base/HostLock.h"
#include "addon/file/KeyFrameFile.h"
#include "addon/ui/DialogLayout.h"
#include "hostapi/CorHost.h"

#include <iterator>
#include <limits>

namespace corvane::corutiltools {

namespace {

constexpr double defaultFramesPerSecond = 30.0;

} // namespace

std::unique_ptr<DialogMain> DialogMain::m_instance;

const PreMappedValue<Destination_e> DialogMain::m_destinationOptions[2] = {
    {"On Screen", Destination_OnScreen}, {"To File", Destination_ToFile}};

DialogMain& DialogMain::instance() {
    if (!m_instance) {
        m_instance.reset(new DialogMain);
    }
    return *m_instance;
}

DialogMain::DialogMain()
    : m_listView(ListViewInterface::SelectionModel_Multi),
      m_frameCount(30, true, true, 1, std::numeric_limits<int>::max()),
      m_settings{.timeOptions = {.animateTime = false,
                                 .operation = TimeAnimationOperation_Forward,
                                 .numCycles = 1},
                 .destination = Destination_OnScreen,
                 .animateStreamtraces = false,
                 .fadeIn = false,
                 .fadeOut = false},
      m_currentFile("animation", KeyFrameFile::m_fileNameExtension, "Key Frame Animation"),
      m_dropper(*this),
      m_destination(m_destinationOptions, std::size(m_destinationOptions)) {
    m_listView.setModel(m_model);
    const HostLock lock;
    toolbox::StyleValue("ExportSetup").set(defaultFramesPerSecond, "AnimationSpeed");
}

bool DialogMain::okToLaunch() {
    instance();
    const HostLock lock;
    return CorUtilFrameGetCount() >= 1 && CorUtilFrameGetPlotType() == PlotType_Cartesian3D;
}

void DialogMain::launch() {
    DialogMain& dialog = instance();
    const HostLock lock;
    if (BuildDialog1(COR_HANDLE_MAIN_WINDOW) == COR_HANDLE_NOT_CREATED) {
        return;
    }
    dialog.buildMenuBar();
    CorGUIDialogLaunch(Dialog1Manager);
}

void DialogMain::init_CB() {
    DialogMain& dialog = instance();
    const HostLock lock;
    dialog.bindControls();
    dialog.m_listView.selectionModel().addObserver(dialog);
    dialog.m_listView.resumeUpdates();
    // A list that was replaced while nobody observed it reports nothing more until that has been
    // delivered.
    dialog.m_model.setDataList(dialog.m_model.dataList());
    dialog.updateMenuToggles();
    dialog.update();
    dialog.m_dropper.startListening();
}

void DialogMain::bindControls() {
    m_destination.setGuiID(Destination_OPT_D1);
    m_destination.fill();
    m_frameCount.setGuiID(FrameCount_TF_D1);
    m_frameCount.updateTextField();
    m_listView.setGuiID(KeyFrameList_MLST_D1);
}

void DialogMain::drop() {
    DialogMain& dialog = instance();
    const HostLock lock;
    CorGUIDialogDrop(Dialog1Manager);
    dialog.m_listView.selectionModel().removeObserver(dialog);
    dialog.m_listView.suspendUpdates();
}

void DialogMain::help_BTN_CB() {
    const HostLock lock;
    CorUtilHelp("key_frame_animation.html", FALSE, 0);
}

bool DialogMain::isVisible() const {
    if (Dialog1Manager == COR_HANDLE_NOT_CREATED) {
        return false;
    }
    const HostLock lock;
    return CorGUIDialogIsUp(Dialog1Manager) != FALSE;
}

void DialogMain::applySettings(const Settings_s& settings) {
    m_settings = settings;
    registerOnIdleUpdate();
    updateMenuToggles();
}

void DialogMain::applyDataModel(const ListModelKeyFrame& model) {
    m_model.setDataList(model.dataList());
    registerOnIdleUpdate();
    updateMenuToggles();
}

void DialogMain::onSettingsFileRead(const std::string& fileName) {
    m_currentFile.setFileName(fileName);
    registerOnIdleUpdate();
    updateMenuToggles();
}

} // namespace corvane::corutiltools
