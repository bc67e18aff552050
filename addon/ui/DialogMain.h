// The main dialog: the key frames and settings that the user and macros work on.
#pragma once

#include "addon/base/OnIdleManager.h"
#include "addon/lists/PreMappedValue.h"
#include "addon/model/ListModelKeyFrame.h"
#include "addon/model/Records.h"
#include "addon/ui/CurrentFileManager.h"
#include "addon/ui/DialogDropper.h"
#include "addon/ui/controls/ListSelectionModelObserverInterface.h"
#include "addon/ui/controls/ListView.h"
#include "addon/ui/controls/OptionMenuStaticManager.h"
#include "addon/ui/controls/TextFieldValidator.h"

#include <memory>
#include <string>
#include <vector>

namespace corvane::test {
class FreshDialogs;
}

namespace corvane::corutiltools {

// One for the whole process: what a macro opens is what the user sees, and it outlives the window.
class DialogMain : public ListSelectionModelObserverInterface {
public:
    // Made on first use, which sets the host's animation speed to 30 frames a second: files play at
    // that speed unless the user chooses another one.
    static DialogMain& instance();

    // Whether the active frame is one that key frames can be taken of. Does not look at the data.
    static bool okToLaunch();

    // Shows the window, or raises it.
    static void launch();

    DialogMain(const DialogMain&) = delete;
    DialogMain& operator=(const DialogMain&) = delete;

    // Whether the user sees the window.
    bool isVisible() const;

    ListModelKeyFrame& model() { return m_model; }
    ListView& listView() { return m_listView; }
    const Settings_s& settings() const { return m_settings; }
    CurrentFileManager& currentFile() { return m_currentFile; }

    // Both copy what they are given.
    void applySettings(const Settings_s& settings);
    void applyDataModel(const ListModelKeyFrame& model);

    // To be called after a key frame file was read: it is the current file from then on.
    void onSettingsFileRead(const std::string& fileName);

    // Plays all key frames to the destination, which the settings keep. Failures are shown to the
    // user.
    void animate(Destination_e destination, MacroOption_e macroOption);

    // Tells the user about options that this data set or frame cannot be animated with, and turns
    // them off.
    void checkAnimationSettings();

    // Refreshes at idle time, once however often it is asked for. Does nothing while the window is
    // not up, since coming up refreshes everything.
    void registerOnIdleUpdate();

    void selectionChanged(const std::vector<unsigned long>& selectedItems) override;

    // For the host. drop also closes the window for others.
    static void init_CB();
    static void drop();
    static void help_BTN_CB();
    static void keyFrameList_MLST_CB(const long* positions);
    static void insertKeyFrame_BTN_CB();
    static void appendKeyFrame_BTN_CB();
    static void update_BTN_CB();
    static void apply_BTN_CB();
    static void delete_BTN_CB();
    static void clear_BTN_CB();
    static long viewName_TF_CB(const char* text);
    static long frameCount_TF_CB(const char* text);
    static void destination_OPT_CB(const long* position);
    static void animateAll_BTN_CB();
    static void animateSelected_BTN_CB();
    static void open_CB();
    static void save_CB();
    static void saveAs_CB();
    static void animateTime_CB(const long* isOn);
    static void timeAnimationOptions_CB();
    static void animateStreams_CB(const long* isOn);
    static void fadeIn_CB(const long* isOn);
    static void fadeOut_CB(const long* isOn);

private:
    friend class test::FreshDialogs;

    DialogMain();

    void bindControls();
    void buildMenuBar();

    void update();
    void updateSelectedKeyFrameInfo(const std::vector<unsigned long>& selection);
    void updateSensitivities(unsigned long numSelected);
    void updateMenuToggles();

    std::vector<unsigned long> selectedItems();
    int selectedItem();
    void captureKeyFrame(unsigned long position);
    void insertKeyFrameIntoModel(const View& view, ListModelKeyFrame& model,
                                 unsigned long position);
    void deleteItems(std::vector<unsigned long> selection);

    void toggle(bool& setting);
    void disable(bool& setting, const std::string& notice);
    void onTimeAnimationDialogDropped(bool accepted);
    void animateSelected();
    void resetDestination();
    void save(bool alwaysAsksForFile);

    static const PreMappedValue<Destination_e> m_destinationOptions[2];

    static std::unique_ptr<DialogMain> m_instance;

    // Handles of the host, COR_HANDLE_NOT_CREATED until the menu bar is built.
    static int m_animateTimeMenuID;
    static int m_animateStreamsMenuID;
    static int m_fadeInMenuID;
    static int m_fadeOutMenuID;

    static bool menuIsBuilt;
    static bool alreadyUpdatingMenuToggles;

    ListModelKeyFrame m_model;
    ListView m_listView;
    TextFieldValidator<int> m_frameCount;
    Settings_s m_settings;
    CurrentFileManager m_currentFile;
    OnIdleManager m_onIdle;
    DialogDropper<DialogMain> m_dropper;
    OptionMenuStaticManager<Destination_e> m_destination;
};

} // namespace corvane::corutiltools
