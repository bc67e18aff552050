// The main dialog: its menu bar.
#include "addon/ui/DialogMain.h"

#include "addon/base/HostLock.h"
#include "addon/base/KeyFrameError.h"
#include "addon/file/KeyFrameFile.h"
#include "addon/ui/DialogLayout.h"
#include "addon/ui/DialogTimeOptions.h"
#include "addon/ui/OpenSettingsFile.h"
#include "addon/ui/controls/Message.h"
#include "hostapi/CorHost.h"

#include <boost/bind/bind.hpp>

#include <exception>

namespace corvane::corutiltools {

int DialogMain::m_animateTimeMenuID = COR_HANDLE_NOT_CREATED;
int DialogMain::m_animateStreamsMenuID = COR_HANDLE_NOT_CREATED;
int DialogMain::m_fadeInMenuID = COR_HANDLE_NOT_CREATED;
int DialogMain::m_fadeOutMenuID = COR_HANDLE_NOT_CREATED;
bool DialogMain::menuIsBuilt = false;

void DialogMain::buildMenuBar() {
    if (menuIsBuilt) {
        return;
    }
    constexpr char saveHelp[] = "Save the key frame animation state to a file.";
    const HostLock lock;
    const int menuBar = CorGUIMenuBarAdd(Dialog1Manager);
    const int file = CorGUIMenuAdd(menuBar, "&File");
    CorGUIMenuAddItem(file, "&Open Animation File...", "Open a saved key frame animation file.",
                      open_CB);
    CorGUIMenuAddSeparator(file);
    CorGUIMenuAddItem(file, "&Save Animation File", saveHelp, save_CB);
    CorGUIMenuAddItem(file, "Save Animation File &As...", saveHelp, saveAs_CB);
    const int options = CorGUIMenuAdd(menuBar, "&Options");
    m_animateTimeMenuID = CorGUIMenuAddToggle(
        options, "Animate &Time Concurrently",
        "Enable this option to animate time during the key frame animation.", animateTime_CB);
    CorGUIMenuAddItem(options, "Time &Animation Options...", nullptr, timeAnimationOptions_CB);
    CorGUIMenuAddSeparator(options);
    m_animateStreamsMenuID = CorGUIMenuAddToggle(
        options, "Animate &Streamtraces Concurrently",
        "Enable this option to animate streamtrace markers during the key frame animation.",
        animateStreams_CB);
    CorGUIMenuAddSeparator(options);
    m_fadeInMenuID = CorGUIMenuAddToggle(options, "Fade &In", nullptr, fadeIn_CB);
    m_fadeOutMenuID = CorGUIMenuAddToggle(options, "Fade &Out", nullptr, fadeOut_CB);
    menuIsBuilt = true;
}

void DialogMain::open_CB() {
    DialogMain& dialog = instance();
    const CurrentFileManager before = dialog.m_currentFile;
    if (!dialog.m_currentFile.promptForFile(SelectFile_Read)) {
        return;
    }
    std::string message;
    try {
        // A copy, since the current file is set anew meanwhile.
        const std::string fileName = dialog.m_currentFile.fileName();
        OpenSettingsFile(fileName, dialog.m_model, dialog.m_settings);
        return;
    } catch (const KeyFrameError& error) {
        message = error.what();
    } catch (const std::exception& error) {
        message = std::string("Error reading key frame settings file.\n\n") + error.what();
    }
    dialog.m_currentFile = before;
    showErrorMessage(message);
}

void DialogMain::save_CB() {
    instance().save(false);
}

void DialogMain::saveAs_CB() {
    instance().save(true);
}

void DialogMain::save(bool alwaysAsksForFile) {
    if (m_model.size() == 0) {
        showErrorMessage("No Key Frames established.");
        return;
    }
    const bool asksForFile = alwaysAsksForFile || !m_currentFile.fileHasBeenSelected();
    if (asksForFile && !m_currentFile.promptForFile(SelectFile_Write)) {
        return;
    }
    try {
        KeyFrameFile().saveFile(m_currentFile.fileName(), m_settings, m_model);
    } catch (const KeyFrameError& error) {
        showErrorMessage(error.what());
    }
}

void DialogMain::toggle(bool& setting) {
    setting = !setting;
    updateMenuToggles();
}

void DialogMain::animateTime_CB(const long*) {
    DialogMain& dialog = instance();
    dialog.toggle(dialog.m_settings.timeOptions.animateTime);
}

void DialogMain::animateStreams_CB(const long*) {
    DialogMain& dialog = instance();
    dialog.toggle(dialog.m_settings.animateStreamtraces);
}

void DialogMain::fadeIn_CB(const long*) {
    DialogMain& dialog = instance();
    dialog.toggle(dialog.m_settings.fadeIn);
}

void DialogMain::fadeOut_CB(const long*) {
    DialogMain& dialog = instance();
    dialog.toggle(dialog.m_settings.fadeOut);
}

void DialogMain::timeAnimationOptions_CB() {
    DialogMain& dialog = instance();
    DialogTimeOptions::instance().launch(
        dialog.m_settings.timeOptions,
        boost::bind(&DialogMain::onTimeAnimationDialogDropped, &dialog, boost::placeholders::_1));
}

void DialogMain::onTimeAnimationDialogDropped(bool accepted) {
    if (accepted) {
        updateMenuToggles();
    }
}

} // namespace corvane::corutiltools
