// A radio box of an add-on.
#pragma once

#include "host/core/controls/Control.h"
#include "host/core/controls/ControlActions.h"

#include <QButtonGroup>
#include <QWidget>

namespace corvane::gui {

class RadioColumn : public QWidget {
public:
    RadioColumn(const host::RadioBox& box, host::ControlActions& actions, QWidget* parent);

    void showChoice();

private:
    const host::RadioBox& m_box;
    QButtonGroup m_group;
};

} // namespace corvane::gui
