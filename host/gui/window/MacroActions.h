// Playing and recording macros: the Macro menu.
#pragma once

#include "host/gui/window/Commands.h"

#include <QObject>

class QAction;

namespace corvane::gui {

class MainWindow;

class MacroActions : public QObject {
    Q_OBJECT

public:
    MacroActions(const Commands& commands, MainWindow& window);

    bool play(const QString& fileName);
    /// Ends the recording and writes it to the file, or, when that fails, goes on with nothing
    /// lost. False: the user was told why.
    bool stopRecording(const QString& fileName);
    /// Asks when a recording would be lost.
    bool mayQuit() const;
    void refresh();

private:
    void askAndPlay();
    void askAndStop();

    Commands m_commands;
    MainWindow& m_window;
    QAction* m_play;
    QAction* m_record;
    QAction* m_stop;
};

} // namespace corvane::gui
