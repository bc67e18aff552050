// Connects the main window to the host: actions and panels, and what they show.
#pragma once

#include "host/gui/commands/Commands.h"
#include "host/gui/commands/StateWatcher.h"
#include "host/gui/menus/FileActions.h"
#include "host/gui/menus/FrameActions.h"
#include "host/gui/menus/HelpActions.h"
#include "host/gui/menus/MacroActions.h"
#include "host/gui/menus/PlotActions.h"
#include "host/gui/menus/TimeActions.h"
#include "host/gui/menus/ViewActions.h"
#include "host/gui/menus/WindowActions.h"
#include "host/gui/time/TimePlayer.h"
#include "host/gui/view/ViewMouse.h"
#include "host/gui/view/WorkAreaFitter.h"

#include <QObject>
#include <QTimer>

namespace corvane::gui {

class IdleDriver;
class MainWindow;
class PlotSidebar;
class TimeBar;

/// Host, window and driver must outlive the controller.
class WindowController : public QObject {
    Q_OBJECT

public:
    WindowController(host::Host& host, MainWindow& window, IdleDriver& idle);
    ~WindowController() override;

    FileActions& files() { return m_files; }
    MacroActions& macros() { return m_macros; }
    TimePlayer& time() { return m_time; }
    PlotSidebar& sidebar() { return *m_sidebar; }

    /// Closes the window, unless the user decides against it, when nothing else is going on.
    void closeAtRest();

    /// Decides whether the window may be closed, and ends the program when it is.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addToolBar();
    void restoreWindow();
    void saveWindow() const;
    void onIdle();
    void closeIfWanted();
    /// Updates everything that shows the state of the host.
    void refresh();
    void refreshTitle();
    void refreshStatus();
    void showExportFailure();
    bool mayClose();

    Commands m_commands;
    MainWindow& m_window;
    IdleDriver& m_idle;
    WorkAreaFitter m_workArea;
    PlotSidebar* m_sidebar;
    TimePlayer m_time;
    FileActions m_files;
    ViewActions m_view;
    WindowActions m_windowActions;
    PlotActions m_plot;
    FrameActions m_frames;
    TimeActions m_timeActions;
    MacroActions m_macros;
    HelpActions m_help;
    ViewMouse m_mouse;
    TimeBar* m_timeBar;
    QTimer m_refresh;
    bool m_mustClose = false;
    StateWatcher m_watcher;
};

} // namespace corvane::gui
