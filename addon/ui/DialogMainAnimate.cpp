// The main dialog: playing the flight.
#include "addon/ui/DialogMain.h"

#include "addon/base/HostLock.h"
#include "addon/base/KeyFrameError.h"
#include "addon/engine/Animate.h"
#include "addon/model/Utilities.h"
#include "addon/ui/ContinuousRun.h"
#include "addon/ui/DialogExportOptions.h"
#include "addon/ui/controls/Message.h"
#include "hostapi/CorHost.h"

#include <boost/bind/bind.hpp>

namespace corvane::corutiltools {

namespace {

void play(const std::vector<KeyFrame_s>& keyFrames, unsigned long startIndex, unsigned long count,
          const Settings_s& settings, MacroOption_e macroOption) {
    try {
        Animate(keyFrames, startIndex, count, settings, macroOption);
    } catch (const KeyFrameError& error) {
        showErrorMessage(error.what());
    }
}

} // namespace

void DialogMain::animate(Destination_e destination, MacroOption_e macroOption) {
    const HostLock lock;
    m_settings.destination = destination;
    play(m_model.dataList(), 0, m_model.size(), m_settings, macroOption);
}

void DialogMain::checkAnimationSettings() {
    const HostLock lock;
    if (m_settings.timeOptions.animateTime && !DataSetIsTransient()) {
        disable(m_settings.timeOptions.animateTime, "The current data set is not transient.\n"
                                                    "Concurrent time animation will be disabled.");
    }
    if (m_settings.animateStreamtraces && !StreamtraceTimingIsEnabled()) {
        disable(m_settings.animateStreamtraces,
                "Neither streamtrace markers nor dashes are enabled.\n"
                "Concurrent streamtrace animation will be disabled.");
    }
}

void DialogMain::disable(bool& setting, const std::string& notice) {
    showNotice(notice);
    setting = false;
    updateMenuToggles();
}

void DialogMain::animateAll_BTN_CB() {
    DialogMain& dialog = instance();
    dialog.checkAnimationSettings();
    if (dialog.m_destination.value() == Destination_OnScreen) {
        dialog.animate(Destination_OnScreen, MacroOption_Record);
    } else {
        DialogExportOptions::instance().launch(
            boost::bind(&DialogMain::animate, &dialog, Destination_ToFile, MacroOption_Record));
    }
}

void DialogMain::animateSelected_BTN_CB() {
    instance().animateSelected();
}

void DialogMain::animateSelected() {
    const HostLock lock;
    const std::vector<unsigned long> selection = selectedItems();
    if (selection.empty()) {
        return;
    }
    if (!isContinuousRun(selection)) {
        showErrorMessage("Selected items must be a continuous range.");
        return;
    }
    if (m_destination.value() == Destination_ToFile) {
        resetDestination();
    }
    m_settings.destination = Destination_OnScreen;
    play(m_model.dataList(), selection.front(), selection.back() - selection.front(), m_settings,
         MacroOption_DoNotRecord);
}

void DialogMain::resetDestination() {
    showNotice("\"Animate Selected\" does not support output to file.\n"
               "The destination has been reset to \"" +
               m_destination.getDisplayString(Destination_OnScreen) + "\".");
    m_settings.destination = Destination_OnScreen;
    registerOnIdleUpdate();
}

void DialogMain::destination_OPT_CB(const long*) {
    DialogMain& dialog = instance();
    dialog.m_settings.destination = dialog.m_destination.value();
    dialog.registerOnIdleUpdate();
}

} // namespace corvane::corutiltools
