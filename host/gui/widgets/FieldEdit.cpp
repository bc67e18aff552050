#include "host/gui/widgets/FieldEdit.h"

#include "host/gui/base/QtText.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTimer>

namespace corvane::gui {

namespace {

/// A message box of an add-on takes the focus, too, but the user has not left the field.
bool isBehindModal(const QWidget& widget) {
    const QWidget* const modal = QApplication::activeModalWidget();
    return modal != nullptr && modal != widget.window();
}

} // namespace

bool isReturn(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

void commitLater(QWidget& widget, const QFocusEvent& event, int field,
                 host::ControlActions& actions) {
    const bool isMenu =
        event.reason() == Qt::PopupFocusReason || event.reason() == Qt::MenuBarFocusReason;
    if (isMenu || isBehindModal(widget)) {
        return;
    }
    QTimer::singleShot(0, &widget, [&widget, &actions, field] {
        if (!widget.hasFocus() && !isBehindModal(widget)) {
            actions.commit(field);
        }
    });
}

FieldEdit::FieldEdit(const host::TextField& field, host::ControlActions& actions, QWidget* parent)
    : QLineEdit(parent), m_field(field), m_actions(actions) {
    connect(this, &QLineEdit::textEdited, this,
            [this](const QString& text) { m_actions.edit(m_field.handle, fromQt(text)); });
}

void FieldEdit::showText() {
    const QString shown = toQt(m_field.shown);
    if (text() != shown) {
        setText(shown);
    }
}

void FieldEdit::keyPressEvent(QKeyEvent* event) {
    if (!isReturn(*event)) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    event->accept(); // or else the dialog would take it for OK
    m_actions.enter(m_field.handle);
}

void FieldEdit::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    commitLater(*this, *event, m_field.handle, m_actions);
}

} // namespace corvane::gui
