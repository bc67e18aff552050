// Keeps an animation on the screen at the rate of the display.
#pragma once

#include <QElapsedTimer>

class QWidget;

namespace corvane::gui {

/// More pictures than the display shows would only make the flight end sooner.
class FramePacer {
public:
    /// The widget tells on which display the pictures are; it must outlive the pacer.
    explicit FramePacer(const QWidget& widget) : m_widget(widget) {}

    void pictureShown() { m_isDue = true; }
    /// Looks after events until the next picture may be shown. Returns at once when no picture was
    /// shown since the last time.
    void waitForDisplay();

private:
    double intervalMs() const;

    const QWidget& m_widget;
    QElapsedTimer m_clock;
    double m_nextMs = 0.0;
    bool m_isDue = false;
};

} // namespace corvane::gui
