#include "host/gui/menus/TimeActions.h"

#include "host/gui/commands/MenuActions.h"
#include "host/gui/time/TimePlayer.h"
#include "host/gui/view/DrawingArea.h"
#include "host/gui/window/MainWindow.h"

namespace corvane::gui {

TimeActions::TimeActions(TimePlayer& player, MainWindow& window) : m_player(player) {
    QMenu& animate = window.menu(QStringLiteral("Animate"));
    m_play = addAction(
        animate, tr("&Play Time"), [this] { m_player.togglePlay(); }, QKeySequence(Qt::Key_Space));
    m_loop = addAction(animate, tr("&Loop"), [this](bool isOn) { m_player.setLooping(isOn); });
    m_loop->setCheckable(true);
    animate.addSeparator();
    QMenu& data = window.menu(QStringLiteral("Data"));
    QAction* const first = addAction(
        data, tr("&First Time"), [this] { m_player.stepBy(-m_player.index()); },
        QKeySequence(Qt::CTRL | Qt::Key_Left));
    QAction* const back = addAction(
        data, tr("&Previous Time"), [this] { m_player.stepBy(-1); }, QKeySequence(Qt::Key_Left));
    QAction* const next = addAction(
        data, tr("&Next Time"), [this] { m_player.stepBy(1); }, QKeySequence(Qt::Key_Right));
    QAction* const last = addAction(
        data, tr("&Last Time"),
        [this] { m_player.stepBy(static_cast<int>(m_player.times().size())); },
        QKeySequence(Qt::CTRL | Qt::Key_Right));
    data.addSeparator();
    m_all = {m_play, m_loop, first, back, next, last};
    for (QAction* const action : m_all) {
        keepKeysTo(window.drawingArea(), *action);
    }
    connect(&m_player, &TimePlayer::changed, this, &TimeActions::refresh);
    refresh();
}

void TimeActions::refresh() {
    for (QAction* const action : m_all) {
        action->setEnabled(m_player.times().size() > 1);
    }
    m_play->setText(m_player.isPlaying() ? tr("&Pause") : tr("&Play Time"));
    m_loop->setChecked(m_player.isLooping());
}

} // namespace corvane::gui
