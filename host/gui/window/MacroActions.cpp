// Playing and recording macros: the Macro menu.
#include "host/gui/window/MacroActions.h"

#include "host/core/Application.h"
#include "host/core/HostError.h"
#include "host/gui/QtText.h"
#include "host/gui/window/MainWindow.h"
#include "host/gui/window/MenuActions.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QSaveFile>
#include <QSettings>

namespace corvane::gui {

namespace {

QString macroFilter() {
    return QObject::tr("Macros (*.mcr);;All files (*)");
}

QString folderKey() {
    return QStringLiteral("macroFolder");
}

void writeLines(const std::vector<std::string>& lines, const QString& fileName) {
    std::string text;
    for (const std::string& line : lines) {
        text += line + "\n";
    }
    QSaveFile file(fileName);
    const bool isWritten = file.open(QIODevice::WriteOnly) &&
                           file.write(text.data(), static_cast<qint64>(text.size())) ==
                               static_cast<qint64>(text.size()) &&
                           file.commit();
    if (!isWritten) {
        throw host::HostError("The macro file " + fromQt(fileName) +
                              " cannot be written: " + fromQt(file.errorString()) + ".");
    }
}

} // namespace

MacroActions::MacroActions(const Commands& commands, MainWindow& window)
    : m_commands(commands), m_window(window) {
    QMenu& menu = window.menu(QStringLiteral("Macro"));
    m_play = addAction(
        menu, tr("&Play Macro…"), [this] { askAndPlay(); }, QKeySequence(Qt::CTRL | Qt::Key_M));
    menu.addSeparator();
    m_record = addAction(menu, tr("&Record Macro"), [this] {
        m_commands.application().recorder().start();
        refresh();
    });
    m_stop = addAction(menu, tr("&Stop Recording…"), [this] { askAndStop(); });
    refresh();
}

bool MacroActions::play(const QString& fileName) {
    return m_commands.attempt(
        [&] { m_commands.application().macros().playFile(fromQt(fileName)); });
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
    host::MacroRecorder& recorder = m_commands.application().recorder();
    const bool isWritten = m_commands.attempt([&] { writeLines(recorder.lines(), fileName); });
    if (isWritten) {
        recorder.stop();
        refresh();
    }
    return isWritten;
}

bool MacroActions::mayQuit() const {
    const host::MacroRecorder& recorder = m_commands.application().recorder();
    return !recorder.isRecording() || recorder.lines().empty() ||
           m_commands.application().dialogs().askYesNo(
               "A macro is being recorded. Quit without saving it?");
}

void MacroActions::refresh() {
    const bool isRecording = m_commands.application().recorder().isRecording();
    m_record->setEnabled(!isRecording);
    m_stop->setEnabled(isRecording);
    // Only what the user does himself is recorded, so a macro in a macro would be lost.
    m_play->setEnabled(!isRecording);
}

} // namespace corvane::gui
