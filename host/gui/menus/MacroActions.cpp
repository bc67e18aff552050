#include "host/gui/menus/MacroActions.h"

#include "host/core/Host.h"
#include "host/core/commands/SceneMacro.h"
#include "host/core/macro/MacroFile.h"
#include "host/gui/base/QtText.h"
#include "host/gui/commands/MenuActions.h"
#include "host/gui/window/MainWindow.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QSettings>

namespace corvane::gui {

namespace {

QString macroFilter() {
    return QObject::tr("Macros (*.mcr);;All files (*)");
}

QString folderKey() {
    return QStringLiteral("macroFolder");
}

} // namespace

MacroActions::MacroActions(const Commands& commands, MainWindow& window)
    : m_commands(commands), m_window(window) {
    QMenu& menu = window.menu(QStringLiteral("Macro"));
    addAction(
        menu, tr("&Play Macro…"), [this] { askAndPlay(); }, QKeySequence(Qt::CTRL | Qt::Key_M));
    menu.addSeparator();
    m_record = addAction(menu, tr("&Record Macro"), [this] { record(); });
    m_stop = addAction(menu, tr("&Stop Recording…"), [this] { stop(); });
    refresh();
}

void MacroActions::record() {
    host::startRecording(m_commands.session(), m_commands.host().recorder());
    refresh();
    Q_EMIT recordingChanged();
}

bool MacroActions::play(const QString& fileName) {
    return m_commands.attempt([&] { m_commands.host().macros().playFile(fromQt(fileName)); });
}

void MacroActions::recordTo(const QString& fileName) {
    m_file = QFileInfo(fileName).absoluteFilePath();
    record();
}

void MacroActions::askAndPlay() {
    QSettings settings;
    const QString file = QFileDialog::getOpenFileName(
        &m_window, tr("Play Macro"), settings.value(folderKey()).toString(), macroFilter());
    if (!file.isEmpty()) {
        settings.setValue(folderKey(), QFileInfo(file).absolutePath());
        play(file);
    }
}

void MacroActions::stop() {
    if (m_file.isEmpty()) {
        askAndStop();
    } else {
        stopRecording(m_file);
    }
}

void MacroActions::askAndStop() {
    QSettings settings;
    QFileDialog dialog(&m_window, tr("Save the Recorded Macro"),
                       settings.value(folderKey()).toString(), macroFilter());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("mcr"));
    if (dialog.exec() == QDialog::Accepted) {
        const QString file = dialog.selectedFiles().constFirst();
        settings.setValue(folderKey(), QFileInfo(file).absolutePath());
        stopRecording(file);
    }
}

bool MacroActions::stopRecording(const QString& fileName) {
    host::MacroRecorder& recorder = m_commands.host().recorder();
    const bool isWritten = m_commands.attempt(
        [&] { host::writeMacro(recorder.lines(), fromQt(fileName), m_commands.session().tell()); });
    if (isWritten) {
        recorder.stop();
        m_file.clear();
        refresh();
        Q_EMIT recordingChanged();
    }
    return isWritten;
}

bool MacroActions::mayQuit() {
    host::MacroRecorder& recorder = m_commands.host().recorder();
    if (recorder.isRecording() && !m_file.isEmpty() && stopRecording(m_file)) {
        return true;
    }
    return !recorder.isRecording() || recorder.lines().empty() ||
           m_commands.session().prompts().askYesNo(
               "A macro is being recorded. Quit without saving it?");
}

void MacroActions::refresh() {
    const bool isRecording = m_commands.host().recorder().isRecording();
    m_record->setEnabled(!isRecording);
    m_stop->setEnabled(isRecording);
}

} // namespace corvane::gui
