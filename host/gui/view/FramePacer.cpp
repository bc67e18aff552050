#include "host/gui/view/FramePacer.h"

#include <QEventLoop>
#include <QScreen>
#include <QTimer>
#include <QWidget>
#include <algorithm>
#include <cmath>

namespace corvane::gui {

double FramePacer::intervalMs() const {
    const double rate = m_widget.screen() != nullptr ? m_widget.screen()->refreshRate() : 60.0;
    return 1000.0 / std::clamp(rate, 20.0, 240.0);
}

void FramePacer::waitForDisplay() {
    if (!m_isDue) {
        return;
    }
    m_isDue = false;
    if (!m_clock.isValid()) {
        m_clock.start();
    }
    const double now = static_cast<double>(m_clock.nsecsElapsed()) * 1e-6;
    const int rest = static_cast<int>(std::floor(m_nextMs - now));
    if (rest > 0) {
        QEventLoop loop;
        QTimer::singleShot(rest, Qt::PreciseTimer, &loop, &QEventLoop::quit);
        loop.exec();
    }
    // The next time is computed from the last one, so that rounding does not slow the animation
    // down; a picture that is late starts a new sequence.
    m_nextMs = std::max(m_nextMs, now) + intervalMs();
}

} // namespace corvane::gui
