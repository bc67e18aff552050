#include "host/gui/controls/ColorButton.h"

#include <QColorDialog>
#include <QPainter>

namespace corvane::gui {

ColorButton::ColorButton(QWidget* parent) : QToolButton(parent) {
    setMinimumWidth(fontMetrics().averageCharWidth() * 9);
    connect(this, &QToolButton::clicked, this, &ColorButton::ask);
}

void ColorButton::setColor(const QColor& color) {
    if (m_color != color) {
        m_color = color;
        update();
    }
}

void ColorButton::ask() {
    const QColor chosen = QColorDialog::getColor(m_color, window(), tr("Choose a Colour"));
    if (chosen.isValid() && chosen != m_color) {
        setColor(chosen);
        Q_EMIT committed(chosen);
    }
}

void ColorButton::paintEvent(QPaintEvent* event) {
    QToolButton::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(isEnabled() ? 1.0 : 0.3);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(m_color);
    painter.drawRoundedRect(QRectF(rect()).adjusted(4.5, 4.5, -4.5, -4.5), 2, 2);
}

} // namespace corvane::gui
