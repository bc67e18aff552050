// A user before file dialogs and message boxes that keep the test waiting.
#include "tests/gui/FileDialogUser.h"

#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QtTest>

namespace corvane::test {

namespace {

void paste(QFileDialog& dialog, const QString& name) {
    auto* const edit = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    QGuiApplication::clipboard()->setText(name);
    QTest::keyClick(edit, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(edit, Qt::Key_V, Qt::ControlModifier);
    QTest::keyClick(edit, Qt::Key_Return);
}

} // namespace

FileDialogUser::FileDialogUser() {
    QObject::connect(&m_timer, &QTimer::timeout, [this] { look(); });
    m_timer.start(5);
}

void FileDialogUser::answer(const std::string& fileName) {
    m_names.append(QString::fromStdString(fileName));
}

void FileDialogUser::look() {
    QWidget* const modal = QApplication::activeModalWidget();
    if (auto* const box = qobject_cast<QMessageBox*>(modal)) {
        m_boxes.append(box->text());
        QTest::keyClick(box, Qt::Key_Return);
    } else if (auto* const dialog = qobject_cast<QFileDialog*>(modal);
               dialog != nullptr && dialog->isVisible()) {
        if (m_names.isEmpty()) {
            m_boxes.append(dialog->windowTitle());
            dialog->reject();
        } else {
            paste(*dialog, m_names.takeFirst());
        }
    }
}

} // namespace corvane::test
