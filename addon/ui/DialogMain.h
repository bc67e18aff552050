// The key frames and settings that the user and macros work on.
#pragma once

#include "addon/model/ListModelKeyFrame.h"
#include "addon/model/Records.h"
#include "addon/ui/CurrentFileManager.h"

#include <string>

namespace corvane::corutiltools {

// One for the whole process: what a macro opens is what the user sees, and it outlives the window.
class DialogMain {
public:
    // Made on first use, which sets the host's animation speed to 30 frames a second: files play at
    // that speed unless the user chooses another one.
    static DialogMain& instance();

    // Whether the active frame is one that key frames can be taken of. Does not look at the data
    // and makes no instance.
    static bool okToLaunch();

    DialogMain(DialogMain const&) = delete;
    DialogMain& operator=(DialogMain const&) = delete;

    // Whether the user sees the window. It is not made before the user asks for it.
    bool isVisible() const;

    ListModelKeyFrame& model();
    Settings_s const& settings() const;
    CurrentFileManager& currentFile();

    // Both copy what they are given.
    void applySettings(Settings_s const& settings);
    void applyDataModel(ListModelKeyFrame const& model);

    // To be called after a key frame file was read: it is the current file from then on.
    void onSettingsFileRead(std::string const& fileName);

private:
    DialogMain();

    static int m_dialog; // the host's handle

    ListModelKeyFrame m_model;
    Settings_s m_settings;
    CurrentFileManager m_currentFile;
};

} // namespace corvane::corutiltools
