// The bar with a slider over the solution times, and buttons to step and to play.
#pragma once

#include <QWidget>

class QLabel;
class QSlider;
class QToolButton;

namespace corvane::gui {

enum class Icon;
class TimePlayer;

/// Hidden for steady data.
class TimeBar : public QWidget {
    Q_OBJECT

public:
    /// The player must outlive the bar.
    explicit TimeBar(TimePlayer& player, QWidget* parent = nullptr);

private:
    QToolButton* addButton(Icon which, const QString& tip, const char* name);
    void refresh();

    TimePlayer& m_player;
    QToolButton* m_play = nullptr;
    QToolButton* m_loop = nullptr;
    QSlider* m_slider;
    QLabel* m_text;
};

} // namespace corvane::gui
