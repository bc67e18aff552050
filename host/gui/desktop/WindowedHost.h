// A host with windows: its main window, the ports that are windows, and the host itself.
#pragma once

#include "host/core/Host.h"
#include "host/gui/desktop/IdleDriver.h"
#include "host/gui/desktop/IdleRequests.h"
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

/// What a host with windows needs of the rest of the program; all must outlive it.
struct WindowedHostParts {
    host::Renderer& renderer;
    host::DataReader& reader;
    host::MovieWriters& movies;
    host::PictureFiles& pictures;
    host::UserPrompts* prompts = nullptr; ///< null: message boxes over the main window
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

    /// Stops a running animation, as the Stop button does.
    void stopWork() { m_status.requestStop(); }
    /// Shows a sentence in the status line for some seconds.
    void showNotice(const std::string& notice);

private:
    MainWindow m_window;
    FramePacer m_pacer;
    PictureScreen m_screen;
    IdleRequests m_idleRequests;
    StatusBarDisplay m_status;
    QtUserPrompts m_prompts;
    QtWidgets m_widgets;
    QtMainMenu m_mainMenu;
    host::Host m_host;
    IdleDriver m_idle;
    WindowController m_controller;
};

} // namespace corvane::gui
