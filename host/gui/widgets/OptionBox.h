// An option menu of an add-on.
#pragma once

#include "host/core/controls/Control.h"
#include "host/core/controls/ControlActions.h"

#include <QComboBox>

namespace corvane::gui {

class OptionBox : public QComboBox {
public:
    OptionBox(const host::OptionMenu& menu, host::ControlActions& actions, QWidget* parent);

    void showItems();
    void showChoice();

private:
    const host::OptionMenu& m_menu;
};

} // namespace corvane::gui
