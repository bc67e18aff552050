// A spin field of an add-on: a text field with two arrows.
#pragma once

#include "host/core/controls/Control.h"
#include "host/core/controls/ControlActions.h"

#include <QAbstractSpinBox>

namespace corvane::gui {

/// The arrows do not change the text themselves: the add-on does.
class SpinEdit : public QAbstractSpinBox {
public:
    SpinEdit(const host::SpinField& field, host::ControlActions& actions, QWidget* parent);

    void showText();
    void stepBy(int steps) override;

protected:
    StepEnabled stepEnabled() const override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    const host::SpinField& m_field;
    host::ControlActions& m_actions;
};

} // namespace corvane::gui
