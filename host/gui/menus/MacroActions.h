// The Macro menu: playing and recording macros.
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
    /// Starts recording; the file is written when the recording is stopped or the program quits.
    void recordTo(const QString& fileName);
    /// Writes the recording to the file and ends it. When writing fails, that is reported, and the
    /// recording goes on with nothing lost: false.
    bool stopRecording(const QString& fileName);
    /// The file of the current recording; empty when the user has yet to choose one.
    const QString& file() const { return m_file; }
    /// Writes a recording whose file is known; asks the user when one would be lost.
    bool mayQuit();
    void refresh();

Q_SIGNALS:
    void recordingChanged(); ///< started or ended

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
