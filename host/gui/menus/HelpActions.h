// The Help menu: mouse and keys, and about the program.
#pragma once

#include "host/gui/commands/Commands.h"

#include <QObject>

namespace corvane::gui {

class MainWindow;

class HelpActions : public QObject {
    Q_OBJECT

public:
    HelpActions(const Commands& commands, MainWindow& window);

private:
    void showKeys();
    void showAbout();

    Commands m_commands;
    MainWindow& m_window;
};

} // namespace corvane::gui
