#include "host/gui/controls/SectionHeader.h"

#include <QPainter>
#include <QPainterPath>

namespace corvane::gui {

namespace {

constexpr double arrowSize = 4.0;
constexpr int textLeft = 18;

} // namespace

SectionHeader::SectionHeader(const QString& title) {
    setText(title);
    setCheckable(true);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    QFont bold = font();
    bold.setBold(true);
    setFont(bold);
}

QSize SectionHeader::sizeHint() const {
    return {fontMetrics().horizontalAdvance(text()) + 2 * textLeft, fontMetrics().height() + 12};
}

void SectionHeader::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor color =
        palette().color(isDown() || hasFocus() ? QPalette::Link : QPalette::WindowText);
    QPainterPath arrow;
    arrow.moveTo(-0.5 * arrowSize, -arrowSize);
    arrow.lineTo(0.5 * arrowSize, 0.0);
    arrow.lineTo(-0.5 * arrowSize, arrowSize);
    painter.save();
    painter.translate(0.5 * textLeft, 0.5 * height());
    painter.rotate(isChecked() ? 90.0 : 0.0);
    painter.setPen(QPen(color, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(arrow);
    painter.restore();
    painter.setPen(color);
    painter.drawText(rect().adjusted(textLeft, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft, text());
}

} // namespace corvane::gui
