// Playing and stepping through time, in the menus Animate and Data and with keys.
#pragma once

#include <QList>
#include <QObject>

class QAction;

namespace corvane::gui {

class MainWindow;
class TimePlayer;

class TimeActions : public QObject {
    Q_OBJECT

public:
    /// Both must outlive the actions.
    TimeActions(TimePlayer& player, MainWindow& window);

private:
    void refresh();

    TimePlayer& m_player;
    QAction* m_play;
    QAction* m_loop;
    QList<QAction*> m_all;
};

} // namespace corvane::gui
