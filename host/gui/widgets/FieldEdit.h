// A text field of an add-on.
#pragma once

#include "host/core/controls/Control.h"
#include "host/core/controls/ControlActions.h"

#include <QLineEdit>

namespace corvane::gui {

class FieldEdit : public QLineEdit {
public:
    FieldEdit(const host::TextField& field, host::ControlActions& actions, QWidget* parent);

    void showText();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    const host::TextField& m_field;
    host::ControlActions& m_actions;
};

/// Whether this key is Return or Enter.
bool isReturn(const QKeyEvent& event);

/// Commits a field that lost the focus, after the event that took the focus was handled: a click on
/// a control commits the text itself, and has no further effect if the text is refused.
void commitLater(QWidget& widget, const QFocusEvent& event, int field,
                 host::ControlActions& actions);

} // namespace corvane::gui
