// Steps and plays through the solution times of the active frame.
#pragma once

#include "host/gui/commands/Commands.h"

#include <QObject>
#include <QTimer>
#include <vector>

namespace corvane::gui {

/// Every step is one command of the macro language. While playing, a step waits until the picture
/// of the one before is drawn, so that steps do not pile up when drawing is slow.
class TimePlayer : public QObject {
    Q_OBJECT

public:
    explicit TimePlayer(const Commands& commands);

    const std::vector<double>& times() const { return m_times; }
    int index() const { return m_index; } ///< of the time shown
    bool isPlaying() const { return m_timer.isActive(); }
    bool isLooping() const { return m_isLooping; }

    void setLooping(bool isLooping);
    void togglePlay();
    void pause();
    void stepBy(int steps);
    void showStep(int index);
    /// Shows the time while a slider is dragged, without a command that would be recorded.
    void previewStep(int index);

    /// Updates times and index from the active frame.
    void refresh();

Q_SIGNALS:
    void changed();

private:
    void playOn();

    Commands m_commands;
    std::vector<double> m_times;
    int m_index = 0;
    bool m_isLooping = false;
    QTimer m_timer;
};

} // namespace corvane::gui
