#include "host/gui/widgets/RadioColumn.h"

#include "host/gui/base/QtText.h"

#include <QRadioButton>
#include <QVBoxLayout>

namespace corvane::gui {

RadioColumn::RadioColumn(const host::RadioBox& box, host::ControlActions& actions, QWidget* parent)
    : QWidget(parent), m_box(box) {
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    for (const std::string& item : box.items) {
        auto* const button = new QRadioButton(toQt(item), this);
        column->addWidget(button);
        m_group.addButton(button, static_cast<int>(m_group.buttons().size()) + 1);
    }
    connect(&m_group, &QButtonGroup::idClicked, this,
            [&box, &actions](int position) { actions.choose(box.handle, position); });
    showChoice();
}

void RadioColumn::showChoice() {
    m_group.setExclusive(false); // or else the checked one could not be unchecked
    const QList<QAbstractButton*> buttons = m_group.buttons();
    for (QAbstractButton* button : buttons) {
        button->setChecked(m_group.id(button) == m_box.chosen);
    }
    m_group.setExclusive(true);
}

} // namespace corvane::gui
