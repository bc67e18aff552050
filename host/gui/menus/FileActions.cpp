#include "host/gui/menus/FileActions.h"

#include "host/core/Host.h"
#include "host/gui/base/Icons.h"
#include "host/gui/base/QtText.h"
#include "host/gui/base/WaitCursor.h"
#include "host/gui/commands/MenuActions.h"
#include "host/gui/menus/DataFilter.h"
#include "host/gui/menus/ExportPictureDialog.h"
#include "host/gui/menus/RecentFiles.h"
#include "host/gui/view/DrawingArea.h"
#include "host/gui/window/MainWindow.h"

#include <QClipboard>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QSettings>

namespace corvane::gui {

FileActions::FileActions(const Commands& commands, MainWindow& window)
    : m_commands(commands), m_window(window), m_recent(new RecentFiles(&window)) {
    QMenu& file = window.menu(QStringLiteral("File"));
    m_open = addAction(
        file, tr("&Open Data…"), [this] { askAndOpen(); }, QKeySequence::Open);
    m_open->setIcon(icon(Icon::Open));
    m_open->setToolTip(tr("Open data files as one data set (Ctrl+O)"));
    file.addMenu(m_recent);
    file.addSeparator();
    m_export = addAction(
        file, tr("&Export Picture…"), [this] { exportPicture(); },
        QKeySequence(Qt::CTRL | Qt::Key_E));
    m_export->setIcon(icon(Icon::Picture));
    file.addSeparator();
    addAction(
        file, tr("&Quit"), [this] { m_window.close(); }, QKeySequence::Quit);
    QMenu& edit = window.menu(QStringLiteral("Edit"));
    m_copy = addAction(
        edit, tr("&Copy Picture"), [this] { copyPicture(); },
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C));
    connect(m_recent, &RecentFiles::chosen, this, &FileActions::openData);
    connect(&window, &MainWindow::filesDropped, this, &FileActions::openData);
}

void FileActions::askAndOpen() {
    QSettings settings;
    const QString key = QStringLiteral("dataFolder");
    const QStringList files =
        QFileDialog::getOpenFileNames(&m_window, tr("Open Data"), settings.value(key).toString(),
                                      dataFilter(m_commands.session().dataFormats()));
    if (!files.isEmpty()) {
        settings.setValue(key, QFileInfo(files.first()).absolutePath());
        openData(files);
    }
}

bool FileActions::openData(const QStringList& files) {
    if (m_commands.isBusy()) {
        return false;
    }
    QStringList absolute;
    std::vector<std::string> words;
    for (const QString& file : files) {
        absolute.append(QFileInfo(file).absoluteFilePath());
        words.push_back(fromQt(absolute.last()));
    }
    bool isOpen = false;
    {
        const WaitCursor wait;
        isOpen = m_commands.perform("READDATA", words);
    }
    if (isOpen) {
        m_recent->add(absolute);
    } else {
        m_recent->remove(absolute);
    }
    return isOpen;
}

void FileActions::exportPicture() {
    const host::WorkArea& area = m_commands.session().page().workArea;
    ExportPictureDialog dialog(area.width, area.height, &m_window);
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    const WaitCursor wait;
    m_commands.perform("PICTURE", dialog.words());
}

void FileActions::copyPicture() {
    QGuiApplication::clipboard()->setImage(m_window.drawingArea().image());
}

void FileActions::refresh() {
    const bool hasFrame = m_commands.session().page().active() != nullptr;
    m_export->setEnabled(hasFrame);
    m_copy->setEnabled(hasFrame);
}

} // namespace corvane::gui
