// Asks for the file, size and smoothing of a picture to export.
#pragma once

#include <QDialog>
#include <string>
#include <vector>

class QComboBox;
class QLabel;
class QLineEdit;
class QSpinBox;

namespace corvane::gui {

class ExportPictureDialog : public QDialog {
    Q_OBJECT

public:
    /// The size of the work area in pixels: the default size and the aspect ratio.
    ExportPictureDialog(int width, int height, QWidget* parent);

    /// The arguments of the command PICTURE.
    std::vector<std::string> words() const;

    void accept() override;

private:
    void browse();
    void showSize();
    QString fileName() const;

    double m_aspect;
    QLineEdit* m_file;
    QSpinBox* m_width;
    QLabel* m_size;
    QComboBox* m_supersample;
};

} // namespace corvane::gui
