// A host with windows: the ports that are windows, the host itself, and its main window.
#pragma once

#include "host/core/Host.h"
#include "host/gui/desktop/IdleDriver.h"
#include "host/gui/desktop/WindowController.h"
#include "host/gui/status/StatusBarDisplay.h"
#include "host/gui/view/FramePacer.h"
#include "host/gui/view/PictureScreen.h"
#include "host/gui/widgets/QtMainMenu.h"
#include "host/gui/widgets/QtUserPrompts.h"
#include "host/gui/widgets/QtWidgets.h"
#include "host/gui/window/MainWindow.h"

#include <QMenuBar>

namespace corvane::gui {

/// What a desktop needs of the rest of the program; all must outlive it.
struct WindowedHostParts {
    host::Renderer& renderer;
    host::DataReader& reader;
    host::MovieWriters& movies;
    host::PictureFiles& pictures;
    host::UserPrompts* prompts = nullptr; ///< null: boxes over the main window
    QString helpFolder;                   ///< where the help pages are
};

class WindowedHost {
public:
    /// There must be a QApplication.
    explicit WindowedHost(const WindowedHostParts& parts);
    ~WindowedHost();
    WindowedHost(const WindowedHost&) = delete;
    WindowedHost& operator=(const WindowedHost&) = delete;

    host::Host& host() { return m_host; }
    MainWindow& window() { return m_window; }
    WindowController& controller() { return m_controller; }

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
    QtUserPrompts m_prompts;
    QtWidgets m_widgets;
    QtMainMenu m_mainMenu;
    host::Host m_host;
    WindowController m_controller;
};

} // namespace corvane::gui
