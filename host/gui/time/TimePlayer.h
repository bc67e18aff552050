// Steps and plays through the solution times of the active frame.
#pragma once

#include "host/gui/commands/Commands.h"

#include <QObject>
#include <QTimer>
#include <vector>

namespace corvane::gui {

/// Every step is one command of the macro language. While it plays, the next step waits until the
/// picture of the last one is there, so that nothing piles up however long drawing takes.
class TimePlayer : public QObject {
    Q_OBJECT

public:
    explicit TimePlayer(const Commands& commands);

    const std::vector<double>& times() const { return m_times; }
    int index() const { return m_index; } ///< of the time that is shown
    bool isPlaying() const { return m_timer.isActive(); }
    bool isLooping() const { return m_isLooping; }

    void setLooping(bool isLooping);
    void togglePlay();
    void pause();
    void stepBy(int steps);
    void showStep(int index);
    /// While a slider is dragged: shown, but not recorded.
    void previewStep(int index);

    /// Follows the frame.
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
