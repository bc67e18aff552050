#include "host/gui/status/StatusBarDisplay.h"

#include "host/gui/base/QtText.h"
#include "host/gui/status/ProgressStrip.h"
#include "host/gui/view/FramePacer.h"

#include <QCoreApplication>
#include <QPushButton>

namespace corvane::gui {

namespace {

/// The host asks thousands of times a second; 60 times is often enough to process events.
constexpr qint64 eventIntervalMs = 16;

} // namespace

StatusBarDisplay::StatusBarDisplay(ProgressStrip& strip, FramePacer& pacer, host::IdleTimer& idle)
    : m_strip(strip), m_pacer(pacer), m_idle(idle), m_blocker(strip.stopButton()) {
    connect(&m_blocker, &InputBlocker::escapePressed, this, &StatusBarDisplay::requestStop);
    connect(&m_blocker, &InputBlocker::closeRequested, this, [this] {
        requestStop();
        Q_EMIT closeRequested();
    });
    connect(&strip.stopButton(), &QPushButton::clicked, this, &StatusBarDisplay::requestStop);
}

void StatusBarDisplay::start(const std::string& text, bool showStop, bool showProgress) {
    m_isStopped = false;
    m_strip.start(toQt(text), showStop, showProgress);
    m_blocker.block();
    m_sinceEvents.invalidate();
}

void StatusBarDisplay::setText(const std::string& text) {
    m_strip.setText(toQt(text));
}

void StatusBarDisplay::setPercent(int percent) {
    m_strip.setPercent(percent);
}

void StatusBarDisplay::finish() {
    m_blocker.unblock();
    m_strip.finish();
    m_idle.requestIdle();
}

bool StatusBarDisplay::isStopRequested() {
    m_pacer.waitForDisplay();
    processEvents();
    return m_isStopped;
}

void StatusBarDisplay::processEvents() {
    if (m_sinceEvents.isValid() && m_sinceEvents.elapsed() < eventIntervalMs) {
        return;
    }
    QCoreApplication::processEvents();
    m_sinceEvents.start();
}

} // namespace corvane::gui
