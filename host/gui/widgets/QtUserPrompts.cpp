#include "host/gui/widgets/QtUserPrompts.h"

#include "host/gui/base/QtText.h"
#include "host/gui/widgets/FileNames.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QUrl>

namespace corvane::gui {

namespace {

using Buttons = QMessageBox::StandardButtons;

int ask(QWidget* parent, QMessageBox::Icon icon, const std::string& text, Buttons buttons,
        QMessageBox::StandardButton escape) {
    QMessageBox box(icon, QStringLiteral("Corvane"), {}, buttons, parent);
    box.setTextFormat(Qt::PlainText); // names may hold '<' and '&'
    box.setText(toQt(text));
    box.setDefaultButton(escape);
    box.setEscapeButton(escape);
    box.setWindowModality(Qt::ApplicationModal);
    return box.exec();
}

void startAt(QFileDialog& dialog, const QString& defaultName) {
    if (defaultName.isEmpty()) {
        return;
    }
    const QFileInfo start(defaultName);
    dialog.setDirectory(start.absoluteDir().exists() ? start.absoluteDir() : QDir::current());
    dialog.selectFile(start.fileName());
}

} // namespace

QWidget* QtUserPrompts::parent() const {
    QWidget* const modal = QApplication::activeModalWidget();
    return modal != nullptr ? modal : m_mainWindow.data();
}

void QtUserPrompts::showError(const std::string& message) {
    ask(parent(), QMessageBox::Critical, message, QMessageBox::Ok, QMessageBox::Ok);
}

void QtUserPrompts::showNotice(const std::string& message) {
    ask(parent(), QMessageBox::Information, message, QMessageBox::Ok, QMessageBox::Ok);
}

bool QtUserPrompts::askYesNo(const std::string& question) {
    return ask(parent(), QMessageBox::Question, question, QMessageBox::Yes | QMessageBox::No,
               QMessageBox::No) == QMessageBox::Yes;
}

std::optional<std::string> QtUserPrompts::askFileName(bool forWriting, const std::string& fileType,
                                                      const std::string& defaultName,
                                                      const std::string& filter) {
    QFileDialog dialog(parent());
    dialog.setWindowTitle(
        (forWriting ? QStringLiteral("Save %1") : QStringLiteral("Open %1")).arg(toQt(fileType)));
    dialog.setAcceptMode(forWriting ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(forWriting ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    // The add-on itself asks whether to replace a file.
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setNameFilters(namePatterns(toQt(fileType), toQt(filter)));
    dialog.setWindowModality(Qt::ApplicationModal);
    startAt(dialog, toQt(defaultName));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return std::nullopt;
    }
    const QString chosen = QFileInfo(dialog.selectedFiles().constFirst()).absoluteFilePath();
    return fromQt(forWriting ? withEnding(chosen, toQt(filter)) : chosen);
}

bool QtUserPrompts::showHelp(const std::string& page) {
    const QFileInfo file(QDir(m_helpFolder).filePath(toQt(page)));
    if (!file.isFile()) {
        m_showStatus("There is no help page " + fromQt(file.absoluteFilePath()) + '.');
        return false;
    }
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(file.absoluteFilePath()))) {
        m_showStatus("No browser could be started for " + fromQt(file.absoluteFilePath()) + '.');
        return false;
    }
    return true;
}

} // namespace corvane::gui
