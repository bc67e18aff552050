#include "host/gui/panels/StylePanel.h"

#include "host/core/Host.h"
#include "host/gui/base/QtText.h"
#include "host/gui/commands/ViewCommand.h"
#include "host/gui/controls/ColorButton.h"
#include "host/gui/controls/NumberEdit.h"
#include "host/gui/controls/ValueSlider.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QSignalBlocker>

namespace corvane::gui {

namespace {

/// The names of variables, and of the components of vectors.
std::vector<std::string> namesOf(const host::DataSet& data, Quantities quantities) {
    std::vector<std::string> names;
    for (const host::Variable& variable : data.variables) {
        const bool isVector = variable.components == 3;
        if (quantities == Quantities::All || isVector) {
            names.push_back(variable.name);
        }
        if (quantities == Quantities::All && isVector) {
            for (const char* part : {":X", ":Y", ":Z"}) {
                names.push_back(variable.name + part);
            }
        }
    }
    return names;
}

template <typename Control>
Control& named(Control* control, const std::string& path) {
    control->setObjectName(toQt(path));
    return *control;
}

} // namespace

StylePanel::StylePanel(const Commands& commands)
    : m_commands(commands), m_editor(commands), m_form(new QFormLayout(this)) {
    m_form->setContentsMargins(14, 2, 8, 12);
    m_form->setVerticalSpacing(6);
    m_form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    m_form->setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void StylePanel::refresh() {
    refillQuantities();
    m_editor.refresh();
}

const host::DataSet* StylePanel::data() const {
    const host::Frame* const frame = spatialFrameWithData(m_commands.session());
    return frame != nullptr ? frame->data().get() : nullptr;
}

void StylePanel::refillQuantities() {
    const std::vector<std::string> all =
        data() != nullptr ? namesOf(*data(), Quantities::All) : std::vector<std::string>{};
    if (all == m_shownQuantities) {
        return;
    }
    m_shownQuantities = all;
    for (const QuantityBox& quantityBox : m_quantityBoxes) {
        const QSignalBlocker quiet(quantityBox.box);
        quantityBox.box->clear();
        for (const std::string& name : data() != nullptr ? namesOf(*data(), quantityBox.quantities)
                                                         : std::vector<std::string>{}) {
            quantityBox.box->addItem(toQt(name), toQt(name));
        }
    }
}

void StylePanel::addRow(const QString& label, QWidget& control) {
    m_form->addRow(label, &control);
}

QCheckBox& StylePanel::addFlag(const QString& text, const std::string& path) {
    auto& box = named(new QCheckBox(text), path);
    m_editor.bind(box, path);
    m_form->addRow(&box);
    return box;
}

NumberEdit& StylePanel::addNumber(const QString& label, const std::string& path) {
    auto& edit = named(new NumberEdit, path);
    m_editor.bind(edit, path);
    addRow(label, edit);
    return edit;
}

ValueSlider& StylePanel::addSlider(const QString& label, const std::string& path, double minimum,
                                   double maximum) {
    auto& slider = named(new ValueSlider, path);
    slider.setRange(minimum, maximum);
    m_editor.bind(slider, path);
    addRow(label, slider);
    return slider;
}

QLineEdit& StylePanel::addText(const QString& label, const std::string& path) {
    auto& edit = named(new QLineEdit, path);
    m_editor.bind(edit, path);
    addRow(label, edit);
    return edit;
}

QComboBox& StylePanel::addChoice(const QString& label, const std::string& path,
                                 const std::vector<Choice>& choices) {
    auto& box = named(new QComboBox, path);
    for (const Choice& choice : choices) {
        box.addItem(choice.text, toQt(choice.value));
    }
    box.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box.setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_editor.bind(box, path);
    addRow(label, box);
    return box;
}

QComboBox& StylePanel::addQuantity(const QString& label, const std::string& path,
                                   Quantities quantities) {
    QComboBox& box = addChoice(label, path, {});
    m_quantityBoxes.push_back({&box, quantities});
    return box;
}

ColorButton& StylePanel::addColor(const QString& label, const std::string& path) {
    auto& button = named(new ColorButton, path);
    m_editor.bind(button, path);
    addRow(label, button);
    return button;
}

void StylePanel::addPoint(const QString& label, const std::string& path) {
    auto* const row = new QWidget;
    auto* const layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    for (const char* part : {"/X", "/Y", "/Z"}) {
        auto& edit = named(new NumberEdit, path + part);
        edit.setMinimumWidth(fontMetrics().averageCharWidth() * 7);
        m_editor.bind(edit, path + part);
        layout->addWidget(&edit);
    }
    addRow(label, *row);
}

} // namespace corvane::gui
