// Keeps the user away from everything but Stop and Esc while an animation plays.
#pragma once

#include <QObject>
#include <functional>

class QWidget;

namespace corvane::gui {

/// Filters the events of the whole program while it is up: painting, timers and the window system
/// get through. Without it somebody could close the dialog that plays, or play a second time.
class InputBlocker : public QObject {
    Q_OBJECT

public:
    /// The button keeps working; it must outlive the shield.
    explicit InputBlocker(QWidget& stopButton) : m_stopButton(stopButton) {}
    ~InputBlocker() override;

    void raise();
    void lower();
    bool isUp() const { return m_isUp; }

    std::function<void()> onEscape;

    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    bool isForStopButton(QObject* receiver) const;
    void handleKey(QEvent* event);

    QWidget& m_stopButton;
    bool m_isUp = false;
};

} // namespace corvane::gui
