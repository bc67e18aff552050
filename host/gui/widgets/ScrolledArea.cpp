// The controls of a dialog, however small the screen is.
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

/// What the title bar, a menu bar and the buttons leave of the screen.
QSize ScrolledArea::room() const {
    constexpr int linesRoundIt = 8;
    return screen()->availableSize() - QSize(0, linesRoundIt * fontMetrics().lineSpacing());
}

QSize ScrolledArea::sizeHint() const {
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    const QSize available = room();
    QSize needed = widget()->size();
    // A bar along one side takes room from the other one.
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
