// Limits the frame rate of an animation to the refresh rate of the display.
#pragma once

#include <QElapsedTimer>

class QWidget;

namespace corvane::gui {

/// Otherwise an animation would play too fast, with pictures that are never seen.
class FramePacer {
public:
    /// The widget shows the pictures, and must outlive the pacer.
    explicit FramePacer(const QWidget& widget) : m_widget(widget) {}

    void pictureShown() { m_isDue = true; }
    /// Processes events until the next picture may be shown. Returns at once if no picture has been
    /// shown since the last call.
    void waitForDisplay();

private:
    double intervalMs() const;

    const QWidget& m_widget;
    QElapsedTimer m_clock;
    double m_nextMs = 0.0;
    bool m_isDue = false;
};

} // namespace corvane::gui
