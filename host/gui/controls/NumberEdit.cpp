#include "host/gui/controls/NumberEdit.h"

#include "host/gui/controls/Numbers.h"

#include <cmath>

namespace corvane::gui {

NumberEdit::NumberEdit(QWidget* parent) : QLineEdit(parent) {
    setAlignment(Qt::AlignRight);
    setText(shortText(m_value));
    connect(this, &QLineEdit::editingFinished, this, &NumberEdit::commit);
}

void NumberEdit::setValue(double value) {
    m_value = value;
    // Must not overwrite what the user is typing.
    if (!hasFocus() || !isModified()) {
        setText(shortText(value));
        setCursorPosition(0);
    }
}

QSize NumberEdit::sizeHint() const {
    return {fontMetrics().averageCharWidth() * 12, QLineEdit::sizeHint().height()};
}

void NumberEdit::commit() {
    if (!isModified()) {
        return;
    }
    setModified(false);
    bool isNumber = false;
    const double entered = text().trimmed().toDouble(&isNumber);
    if (isNumber && std::isfinite(entered)) {
        m_value = entered;
        Q_EMIT committed(entered);
    }
    setText(shortText(m_value));
}

} // namespace corvane::gui
