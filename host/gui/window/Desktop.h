// A host with windows: the parts of the outside that are windows, the application, and its window.
#pragma once

#include "host/core/Application.h"
#include "host/gui/widgets/QtDialogs.h"
#include "host/gui/widgets/QtMainMenu.h"
#include "host/gui/widgets/QtWidgets.h"
#include "host/gui/window/FramePacer.h"
#include "host/gui/window/IdleDriver.h"
#include "host/gui/window/MainWindow.h"
#include "host/gui/window/PictureScreen.h"
#include "host/gui/window/StatusBarDisplay.h"
#include "host/gui/window/Workbench.h"

#include <QMenuBar>

namespace corvane::gui {

/// What a desktop needs of the rest of the program; all must outlive it.
struct DesktopParts {
    host::Renderer& renderer;
    host::DataReader& reader;
    host::MovieWriters& movies;
    host::PictureFiles& pictures;
    host::Dialogs* dialogs = nullptr; ///< null: boxes over the main window
    QString helpFolder;               ///< where the help pages are
};

class Desktop {
public:
    /// There must be a QApplication.
    explicit Desktop(const DesktopParts& parts);
    ~Desktop();
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

    host::Application& application() { return m_application; }
    MainWindow& window() { return m_window; }
    Workbench& workbench() { return m_workbench; }

    /// Asks what is under way to end, as the Stop button does.
    void stopWork() { m_status.requestStop(); }
    /// Shows a sentence in the status line for some seconds.
    void tell(const std::string& notice);

private:
    MainWindow m_window;
    FramePacer m_pacer;
    PictureScreen m_screen;
    StatusBarDisplay m_status;
    IdleDriver m_idle;
    QtDialogs m_dialogs;
    QtWidgets m_widgets;
    QtMainMenu m_mainMenu;
    host::Application m_application;
    Workbench m_workbench;
};

} // namespace corvane::gui
