// Blocks the user's input, but for Stop and Esc, while an animation plays.
#pragma once

#include <QObject>

class QWidget;

namespace corvane::gui {

/// Filters the events of the whole program while it blocks: painting, timers and the window system
/// get through. Otherwise a user could close the dialog that plays, or play a second time.
class InputBlocker : public QObject {
    Q_OBJECT

public:
    /// The button keeps working, and closing its window is reported; it must outlive the blocker.
    explicit InputBlocker(QWidget& stopButton) : m_stopButton(stopButton) {}
    ~InputBlocker() override;

    void block();
    void unblock();

    bool eventFilter(QObject* receiver, QEvent* event) override;

Q_SIGNALS:
    void escapePressed();
    void closeRequested(); ///< nothing was closed

private:
    bool isMainWindow(QObject* receiver) const;
    bool isForStopButton(QObject* receiver) const;
    void handleKey(QEvent* event);

    QWidget& m_stopButton;
    bool m_isBlocking = false;
};

} // namespace corvane::gui
