#include "host/gui/menus/ExportPictureDialog.h"

#include "host/core/base/Limits.h"
#include "host/gui/base/QtText.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

namespace corvane::gui {

namespace {

QString fileKey() {
    return QStringLiteral("pictureFile");
}

QString defaultFile() {
    return QSettings()
        .value(fileKey(), QDir::home().filePath(QStringLiteral("corvane.png")))
        .toString();
}

} // namespace

ExportPictureDialog::ExportPictureDialog(int width, int height, QWidget* parent)
    : QDialog(parent),
      m_aspect(static_cast<double>(width) / std::max(height, 1)),
      m_file(new QLineEdit(defaultFile())),
      m_width(new QSpinBox),
      m_size(new QLabel),
      m_supersample(new QComboBox) {
    setWindowTitle(tr("Export Picture"));
    m_file->setMinimumWidth(fontMetrics().averageCharWidth() * 48);
    m_width->setRange(host::limits::pictureSide.least, host::limits::pictureSide.most);
    m_width->setValue(width);
    m_width->setSuffix(tr(" pixels"));
    for (const int factor : {1, 2, 3, 4}) {
        m_supersample->addItem(factor == 1 ? tr("None") : tr("%1 × %1").arg(factor), factor);
    }
    m_supersample->setCurrentIndex(1);
    auto* const browseButton = new QPushButton(tr("Browse…"));
    auto* const fileRow = new QHBoxLayout;
    fileRow->addWidget(m_file, 1);
    fileRow->addWidget(browseButton);
    auto* const widthRow = new QHBoxLayout;
    widthRow->addWidget(m_width);
    widthRow->addWidget(m_size, 1);
    auto* const form = new QFormLayout;
    form->addRow(tr("&File"), fileRow);
    qobject_cast<QLabel*>(form->labelForField(fileRow))->setBuddy(m_file);
    form->addRow(tr("&Width"), widthRow);
    qobject_cast<QLabel*>(form->labelForField(widthRow))->setBuddy(m_width);
    form->addRow(tr("&Smoothing"), m_supersample);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel);
    auto* const column = new QVBoxLayout(this);
    column->addLayout(form);
    column->addWidget(buttons);
    connect(browseButton, &QPushButton::clicked, this, &ExportPictureDialog::browse);
    connect(m_width, &QSpinBox::valueChanged, this, &ExportPictureDialog::showSize);
    connect(buttons, &QDialogButtonBox::accepted, this, &ExportPictureDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ExportPictureDialog::reject);
    showSize();
}

std::vector<std::string> ExportPictureDialog::words() const {
    return {fromQt(fileName()),
            "Width",
            "=",
            std::to_string(m_width->value()),
            "Supersample",
            "=",
            std::to_string(m_supersample->currentData().toInt())};
}

void ExportPictureDialog::accept() {
    if (m_file->text().trimmed().isEmpty()) {
        m_file->setFocus();
        return;
    }
    const QString question =
        tr("%1 exists already. Replace it?").arg(QFileInfo(fileName()).fileName());
    if (QFileInfo::exists(fileName()) &&
        QMessageBox::question(this, windowTitle(), question) != QMessageBox::Yes) {
        return;
    }
    QSettings().setValue(fileKey(), fileName());
    QDialog::accept();
}

void ExportPictureDialog::browse() {
    // accept() asks about replacing an existing file.
    const QString chosen =
        QFileDialog::getSaveFileName(this, windowTitle(), fileName(), tr("Pictures (*.png)"),
                                     nullptr, QFileDialog::DontConfirmOverwrite);
    if (!chosen.isEmpty()) {
        m_file->setText(chosen);
    }
}

void ExportPictureDialog::showSize() {
    m_size->setText(tr("× %1").arg(std::max(1L, std::lround(m_width->value() / m_aspect))));
}

QString ExportPictureDialog::fileName() const {
    const QFileInfo file(m_file->text().trimmed());
    const QString path = file.absoluteFilePath();
    return file.suffix().isEmpty() ? path + QStringLiteral(".png") : path;
}

} // namespace corvane::gui
