// Playing and recording macros: the Macro menu.
#pragma once

#include "host/gui/commands/Commands.h"

#include <QObject>

class QAction;

namespace corvane::gui {

class MainWindow;

class MacroActions : public QObject {
    Q_OBJECT

public:
    MacroActions(const Commands& commands, MainWindow& window);

    bool play(const QString& fileName);
    /// Records from now on; the file is written when the recording is stopped, or at the end.
    void recordTo(const QString& fileName);
    /// Ends the recording and writes it to the file, or, when that fails, goes on with nothing
    /// lost. False: the user was told why.
    bool stopRecording(const QString& fileName);
    /// Of the recording that is under way, when it is known; else empty.
    const QString& file() const { return m_file; }
    /// Writes a recording whose file is known; asks when one would be lost.
    bool mayQuit();
    void refresh();

Q_SIGNALS:
    void recordingChanged(); ///< begun or ended

private:
    void record();
    void askAndPlay();
    void stop();
    void askAndStop();

    Commands m_commands;
    MainWindow& m_window;
    QAction* m_record;
    QAction* m_stop;
    QString m_file;
};

} // namespace corvane::gui
