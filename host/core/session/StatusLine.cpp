// Counts nested percent-done displays and remembers the wish to stop.
#include "host/core/session/StatusLine.h"

#include "host/core/ports/Ports.h"

#include <algorithm>

namespace corvane::host {

void StatusLine::start(const std::string& text, bool showStop, bool showProgress) {
    if (++m_depth > 1) {
        return;
    }
    m_stopped = false;
    m_latched = false;
    m_display.start(text, showStop, showProgress);
}

void StatusLine::setText(const std::string& text) {
    if (m_depth == 1) {
        m_display.setText(text);
    }
}

bool StatusLine::check(int percent) {
    if (m_depth == 1) {
        m_display.setPercent(std::clamp(percent, 0, 100));
    }
    if (isActive() && m_display.isStopRequested()) {
        m_stopped = true;
        m_latched = true;
    }
    const bool failed = m_hasFailed();
    m_latched = m_latched || (failed && isActive());
    return !m_latched && !failed;
}

void StatusLine::finish() {
    if (m_depth == 0) {
        return;
    }
    if (--m_depth == 0) {
        m_latched = false;
        m_display.finish();
    }
}

} // namespace corvane::host
