// Actions of the window itself: sidebar, full screen, color scheme and data information.
#pragma once

#include "host/gui/commands/Commands.h"

#include <QObject>

class QAction;
class QDockWidget;

namespace corvane::gui {

class MainWindow;

class WindowActions : public QObject {
    Q_OBJECT

public:
    /// All must outlive the actions.
    WindowActions(const Commands& commands, MainWindow& window, QDockWidget& sidebar);

    QAction& sidebarAction() const { return *m_sidebar; }
    void refresh();

private:
    void addAppearances();
    void showData();
    void setFullScreen(bool isFull);

    Commands m_commands;
    MainWindow& m_window;
    QAction* m_sidebar;
    QAction* m_data;
};

} // namespace corvane::gui
