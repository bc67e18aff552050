#include "host/gui/widgets/SpinEdit.h"

#include "host/gui/base/QtText.h"
#include "host/gui/widgets/FieldEdit.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <cstdlib>

namespace corvane::gui {

SpinEdit::SpinEdit(const host::SpinField& field, host::ControlActions& actions, QWidget* parent)
    : QAbstractSpinBox(parent), m_field(field), m_actions(actions) {
    connect(lineEdit(), &QLineEdit::textEdited, this,
            [this](const QString& text) { m_actions.edit(m_field.handle, fromQt(text)); });
}

void SpinEdit::showText() {
    const QString shown = toQt(m_field.shown);
    if (lineEdit()->text() != shown) {
        lineEdit()->setText(shown);
    }
}

void SpinEdit::stepBy(int steps) {
    for (int step = 0; step < std::abs(steps); ++step) {
        m_actions.step(m_field.handle, steps > 0);
    }
}

QAbstractSpinBox::StepEnabled SpinEdit::stepEnabled() const {
    return StepUpEnabled | StepDownEnabled;
}

void SpinEdit::keyPressEvent(QKeyEvent* event) {
    if (!isReturn(*event)) {
        QAbstractSpinBox::keyPressEvent(event);
        return;
    }
    event->accept(); // or else the dialog would take it for OK
    m_actions.enter(m_field.handle);
}

void SpinEdit::focusOutEvent(QFocusEvent* event) {
    QAbstractSpinBox::focusOutEvent(event);
    commitLater(*this, *event, m_field.handle, m_actions);
}

} // namespace corvane::gui
