// The dialog in which the user chooses how solution time runs during a flight.
#include "addon/ui/DialogTimeOptions.h"

#include "addon/base/HostLock.h"
#include "addon/ui/DialogLayout.h"
#include "hostapi/CorHost.h"

#include <algorithm>
#include <limits>

namespace corvane::corutiltools {

namespace {

constexpr int maximumNumCycles = std::numeric_limits<int>::max();

} // namespace

std::unique_ptr<DialogTimeOptions> DialogTimeOptions::m_instance;

DialogTimeOptions& DialogTimeOptions::instance() {
    if (!m_instance) {
        m_instance.reset(new DialogTimeOptions);
    }
    return *m_instance;
}

DialogTimeOptions::DialogTimeOptions() : m_numCycles(1, true, false, 1, maximumNumCycles) {
    initAnimationMap();
}

void DialogTimeOptions::initAnimationMap() {
    m_operations[1] = TimeAnimationOperation_Forward;
    m_operations[2] = TimeAnimationOperation_Loop;
    m_operations[3] = TimeAnimationOperation_Bounce;
    m_operations[4] = TimeAnimationOperation_AsCaptured;
}

bool DialogTimeOptions::okToLaunch(long) {
    return true;
}

void DialogTimeOptions::launch(TimeAnimationOptions_s& options,
                               const boost::function<void(bool)>& onDone) {
    const HostLock lock;
    if (BuildDialog3(COR_HANDLE_MAIN_WINDOW) == COR_HANDLE_NOT_CREATED) {
        return;
    }
    m_options = &options;
    m_onDone = onDone;
    CorGUIDialogLaunch(Dialog3Manager);
}

void DialogTimeOptions::updateSensitivities(TimeAnimationOperation_e operation) {
    const bool repeats =
        operation == TimeAnimationOperation_Loop || operation == TimeAnimationOperation_Bounce;
    const HostLock lock;
    CorGUISetSensitivity(NumCycles_LBL_D3, repeats);
    CorGUISetSensitivity(NumCycles_TFS_D3, repeats);
}

void DialogTimeOptions::init_CB() {
    instance().showOptions();
}

void DialogTimeOptions::showOptions() {
    const HostLock lock;
    m_numCycles.setGuiID(NumCycles_TFS_D3);
    m_numCycles.updateTextField();
    selectOperation(m_options->operation);
    m_numCycles.setValue(
        static_cast<int>(std::min<unsigned long>(m_options->numCycles, maximumNumCycles)));
    updateSensitivities(m_options->operation);
}

void DialogTimeOptions::selectOperation(TimeAnimationOperation_e operation) {
    const auto row = std::find_if(m_operations.begin(), m_operations.end(),
                                  [operation](const auto& r) { return r.second == operation; });
    if (row != m_operations.end()) {
        CorGUIRadioBoxSetToggle(AnimationOperation_RADIO_D3, row->first);
    }
}

void DialogTimeOptions::animationOperation_RADIO_CB(const long* position) {
    DialogTimeOptions& dialog = instance();
    dialog.updateSensitivities(dialog.m_operations.at(*position));
}

long DialogTimeOptions::numCycles_TFS_ValueChanged_CB(const char* text) {
    return instance().m_numCycles.validate(text);
}

void DialogTimeOptions::numCycles_TFS_ButtonUp_CB() {
    instance().stepNumCycles(1);
}

void DialogTimeOptions::numCycles_TFS_ButtonDown_CB() {
    instance().stepNumCycles(-1);
}

void DialogTimeOptions::stepNumCycles(int step) {
    const long wanted = static_cast<long>(m_numCycles.value()) + step;
    m_numCycles.setValue(static_cast<int>(std::min<long>(wanted, maximumNumCycles)));
}

void DialogTimeOptions::ok_BTN_CB() {
    DialogTimeOptions& dialog = instance();
    const HostLock lock;
    dialog.takeOptions();
    dialog.close();
    // A copy, since it may launch the dialog again.
    const boost::function<void(bool)> onDone = dialog.m_onDone;
    onDone(true);
}

void DialogTimeOptions::takeOptions() {
    m_options->operation = m_operations.at(CorGUIRadioBoxGetToggle(AnimationOperation_RADIO_D3));
    m_options->animateTime = true;
    m_options->numCycles = static_cast<unsigned long>(m_numCycles.value());
}

void DialogTimeOptions::cancel_BTN_CB() {
    DialogTimeOptions& dialog = instance();
    const HostLock lock;
    dialog.close();
    const boost::function<void(bool)> onDone = dialog.m_onDone;
    onDone(false);
}

void DialogTimeOptions::drop() {
    const HostLock lock;
    instance().close();
}

void DialogTimeOptions::close() {
    m_options = nullptr;
    CorGUIDialogDrop(Dialog3Manager);
}

void DialogTimeOptions::help_BTN_CB() {
    const HostLock lock;
    CorUtilHelp("time_animation_options.html", FALSE, 0);
}

} // namespace corvane::corutiltools
