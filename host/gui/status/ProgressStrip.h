// What stands in the status line: a text, and progress with a Stop button while something runs.
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

    /// What stands there as long as nothing runs.
    void setIdleText(const QString& text);
    /// Stands there instead for some seconds, as soon as nothing runs.
    void tell(const QString& notice);

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
