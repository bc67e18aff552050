// The status line: a text, and progress with a Stop button while an animation runs.
#pragma once

#include <QTimer>
#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;

namespace corvane::gui {

class ProgressStrip : public QWidget {
    Q_OBJECT

public:
    explicit ProgressStrip(QWidget* parent = nullptr);

    /// The text while nothing is running.
    void setIdleText(const QString& text);
    /// Replaces the idle text for some seconds; shown once nothing is running.
    void showNotice(const QString& notice);

    void start(const QString& text, bool showStop, bool showProgress);
    void setText(const QString& text);
    void setPercent(int percent);
    void finish();

    QLabel& label() const { return *m_label; }
    QProgressBar& bar() const { return *m_bar; }
    QPushButton& stopButton() const { return *m_stop; }

private:
    void showIdleText();

    QLabel* m_label;
    QProgressBar* m_bar;
    QPushButton* m_stop;
    QString m_idleText;
    QString m_notice;
    QTimer m_noticeEnd;
    bool m_isRunning = false;
};

} // namespace corvane::gui
