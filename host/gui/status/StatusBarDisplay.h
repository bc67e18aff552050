// Shows the host's progress in the status line, and takes the user's request to stop.
#pragma once

#include "host/core/ports/Ports.h"
#include "host/gui/status/InputBlocker.h"

#include <QElapsedTimer>
#include <QObject>

namespace corvane::gui {

class FramePacer;
class ProgressStrip;

/// All must outlive the display.
class StatusBarDisplay : public QObject, public host::StatusDisplay {
    Q_OBJECT

public:
    /// Idle time is requested when progress ends, since much waits for that.
    StatusBarDisplay(ProgressStrip& strip, FramePacer& pacer, host::IdleTimer& idle);

    void start(const std::string& text, bool showStop, bool showProgress) override;
    void setText(const std::string& text) override;
    void setPercent(int percent) override;
    void finish() override;
    bool isStopRequested() override;

    /// As the Stop button does. Has no effect when nothing is running.
    void requestStop() { m_isStopped = true; }

Q_SIGNALS:
    /// The user closed the window while an animation ran: that is stopped, and the window is still
    /// there.
    void closeRequested();

private:
    void processEvents();

    ProgressStrip& m_strip;
    FramePacer& m_pacer;
    host::IdleTimer& m_idle;
    InputBlocker m_blocker;
    QElapsedTimer m_sinceEvents;
    bool m_isStopped = false;
};

} // namespace corvane::gui
