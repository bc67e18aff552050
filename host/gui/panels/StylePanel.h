// A form of style values, the content of a section of the sidebar.
#pragma once

#include "host/gui/panels/StyleEditor.h"

#include <QWidget>

class QFormLayout;

namespace corvane::host {
class DataSet;
class Frame;
} // namespace corvane::host

namespace corvane::gui {

/// An item of a choice: its label, and the value as written in macros.
struct Choice {
    QString text;
    std::string value;
};

enum class Quantities { All, Vectors };

class StylePanel : public QWidget {
    Q_OBJECT

public:
    explicit StylePanel(const Commands& commands);

    /// Shows the values of the active frame.
    virtual void refresh();

protected:
    /// The data of the active frame if it shows 3D, since it has no styles otherwise; or null.
    const host::DataSet* data() const;
    StyleEditor& editor() { return m_editor; }
    const Commands& commands() const { return m_commands; }
    QFormLayout& form() { return *m_form; }

    // Add a row to the form. The object names of the controls are their paths.
    QCheckBox& addFlag(const QString& text, const std::string& path);
    NumberEdit& addNumber(const QString& label, const std::string& path);
    ValueSlider& addSlider(const QString& label, const std::string& path, double minimum,
                           double maximum);
    QLineEdit& addText(const QString& label, const std::string& path);
    QComboBox& addChoice(const QString& label, const std::string& path,
                         const std::vector<Choice>& choices);
    QComboBox& addQuantity(const QString& label, const std::string& path, Quantities quantities);
    ColorButton& addColor(const QString& label, const std::string& path);
    /// The values X, Y and Z below the path.
    void addPoint(const QString& label, const std::string& path);
    void addRow(const QString& label, QWidget& control);

private:
    void refillQuantities();

    struct QuantityBox {
        QComboBox* box;
        Quantities quantities;
    };

    Commands m_commands;
    StyleEditor m_editor;
    QFormLayout* m_form;
    std::vector<QuantityBox> m_quantityBoxes;
    std::vector<std::string> m_shownQuantities;
};

} // namespace corvane::gui
