#include "host/gui/widgets/OptionBox.h"

#include "host/gui/base/QtText.h"

namespace corvane::gui {

OptionBox::OptionBox(const host::OptionMenu& menu, host::ControlActions& actions, QWidget* parent)
    : QComboBox(parent), m_menu(menu) {
    connect(this, &QComboBox::activated, this,
            [&menu, &actions](int index) { actions.choose(menu.handle, index + 1); });
    showItems();
}

void OptionBox::showItems() {
    clear();
    for (const std::string& item : m_menu.items) {
        addItem(toQt(item));
    }
    showChoice();
}

void OptionBox::showChoice() {
    setCurrentIndex(static_cast<int>(m_menu.chosen() - 1));
}

} // namespace corvane::gui
