// The percent-done display of a window, and the user's wish to stop.
#pragma once

#include "host/core/ports/Ports.h"
#include "host/gui/status/InputBlocker.h"

#include <QElapsedTimer>
#include <QObject>

namespace corvane::gui {

class FramePacer;
class ProgressStrip;

/// Strip and pacer must outlive the display.
class StatusBarDisplay : public QObject, public host::StatusDisplay {
    Q_OBJECT

public:
    StatusBarDisplay(ProgressStrip& strip, FramePacer& pacer);

    void start(const std::string& text, bool showStop, bool showProgress) override;
    void setText(const std::string& text) override;
    void setPercent(int percent) override;
    void finish() override;
    bool isStopRequested() override;

    /// As the Stop button does; without work nothing.
    void requestStop() { m_isStopped = true; }

    /// Called when what was running has ended.
    std::function<void()> onFinished;

private:
    void lookAfterEvents();

    ProgressStrip& m_strip;
    FramePacer& m_pacer;
    InputBlocker m_blocker;
    QElapsedTimer m_sinceEvents;
    bool m_isStopped = false;
};

} // namespace corvane::gui
