#include "host/gui/widgets/ScrolledArea.h"

#include "host/gui/widgets/ControlArea.h"

#include <QEvent>
#include <QScreen>
#include <QStyle>

namespace corvane::gui {

ScrolledArea::ScrolledArea(ControlArea* area, QWidget* parent) : QScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidget(area);
    area->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
}

/// The size of the screen without title bar, menu bar and buttons.
QSize ScrolledArea::availableSize() const {
    constexpr int linesAround = 8;
    return screen()->availableSize() - QSize(0, linesAround * fontMetrics().lineSpacing());
}

QSize ScrolledArea::sizeHint() const {
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    const QSize available = availableSize();
    QSize needed = widget()->size();
    // A scroll bar takes space from the other direction.
    const bool isTooHigh = needed.height() > available.height();
    const bool isTooWide = needed.width() + (isTooHigh ? bar : 0) > available.width();
    needed += QSize(isTooHigh ? bar : 0, isTooWide ? bar : 0);
    return needed.boundedTo(available);
}

bool ScrolledArea::eventFilter(QObject* watched, QEvent* event) {
    if (watched == widget() && event->type() == QEvent::Resize) {
        updateGeometry();
    }
    return QScrollArea::eventFilter(watched, event);
}

} // namespace corvane::gui
