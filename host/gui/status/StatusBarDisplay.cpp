// The percent-done display of a window, and the user's wish to stop.
#include "host/gui/status/StatusBarDisplay.h"

#include "host/gui/base/QtText.h"
#include "host/gui/status/ProgressStrip.h"
#include "host/gui/view/FramePacer.h"

#include <QCoreApplication>
#include <QPushButton>

namespace corvane::gui {

namespace {

/// The host asks thousands of times a second; events are looked at some 60 times.
constexpr qint64 eventIntervalMs = 16;

} // namespace

StatusBarDisplay::StatusBarDisplay(ProgressStrip& strip, FramePacer& pacer)
    : m_strip(strip), m_pacer(pacer), m_blocker(strip.stopButton()) {
    m_blocker.onEscape = [this] { requestStop(); };
    connect(&strip.stopButton(), &QPushButton::clicked, this, &StatusBarDisplay::requestStop);
}

void StatusBarDisplay::start(const std::string& text, bool showStop, bool showProgress) {
    m_isStopped = false;
    m_strip.start(toQt(text), showStop, showProgress);
    m_blocker.raise();
    m_sinceEvents.invalidate();
}

void StatusBarDisplay::setText(const std::string& text) {
    m_strip.setText(toQt(text));
}

void StatusBarDisplay::setPercent(int percent) {
    m_strip.setPercent(percent);
}

void StatusBarDisplay::finish() {
    m_blocker.lower();
    m_strip.finish();
    if (onFinished) {
        onFinished();
    }
}

bool StatusBarDisplay::isStopRequested() {
    m_pacer.waitForDisplay();
    lookAfterEvents();
    return m_isStopped;
}

void StatusBarDisplay::lookAfterEvents() {
    if (m_sinceEvents.isValid() && m_sinceEvents.elapsed() < eventIntervalMs) {
        return;
    }
    QCoreApplication::processEvents();
    m_sinceEvents.start();
}

} // namespace corvane::gui
