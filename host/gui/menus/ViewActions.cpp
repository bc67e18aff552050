#include "host/gui/menus/ViewActions.h"

#include "host/core/Host.h"
#include "host/gui/base/Icons.h"
#include "host/gui/commands/MenuActions.h"
#include "host/gui/commands/ViewCommand.h"
#include "host/gui/view/DrawingArea.h"
#include "host/gui/view/ViewMotion.h"
#include "host/gui/window/MainWindow.h"

#include <QToolBar>

namespace corvane::gui {

ViewActions::ViewActions(const Commands& commands, MainWindow& window)
    : m_commands(commands), m_window(window) {
    QMenu& menu = window.menu(QStringLiteral("View"));
    m_fit = addAction(menu, tr("&Fit Data"), [this] { m_commands.perform("VIEW", {"FIT"}); });
    m_fit->setShortcuts({QKeySequence(Qt::Key_F), QKeySequence(Qt::Key_Home)});
    m_fit->setIcon(icon(Icon::Fit));
    m_fit->setToolTip(tr("Make the data fill the window (F)"));
    keepKeysTo(window.drawingArea(), *m_fit);
    menu.addSeparator();
    addAxis(tr("From +&X"), "+X", QStringLiteral("1"));
    addAxis(tr("From −X"), "-X", QStringLiteral("2"));
    addAxis(tr("From +&Y"), "+Y", QStringLiteral("3"));
    addAxis(tr("From −Y"), "-Y", QStringLiteral("4"));
    addAxis(tr("From +&Z"), "+Z", QStringLiteral("5"));
    addAxis(tr("From −Z"), "-Z", QStringLiteral("6"));
    m_corner = addAction(
        menu, tr("From the &Corner"), [this] { lookFromTheCorner(); },
        QKeySequence(QStringLiteral("7")));
    keepKeysTo(window.drawingArea(), *m_corner);
    menu.addSeparator();
    m_perspective = addAction(
        menu, tr("&Perspective"), [this](bool isOn) { setPerspective(isOn); },
        QKeySequence(Qt::Key_P));
    m_perspective->setCheckable(true);
    m_perspective->setIcon(icon(Icon::Perspective));
    m_perspective->setToolTip(tr("Perspective (P)"));
    keepKeysTo(window.drawingArea(), *m_perspective);
    menu.addSeparator();
}

void ViewActions::addAxis(const QString& text, const char* axis, const QString& key) {
    QMenu& menu = m_window.menu(QStringLiteral("View"));
    QAction* const action = addAction(
        menu, text,
        [this, axis] {
            m_commands.perform("VIEW", {"AXIS", "=", axis});
        },
        QKeySequence(key));
    keepKeysTo(m_window.drawingArea(), *action);
    m_axes.append(action);
}

void ViewActions::lookFromTheCorner() {
    const bool isTurned = m_commands.perform(
        "VIEW", {"SET", "Psi", "=", "65", "Theta", "=", "30", "Alpha", "=", "0"});
    if (isTurned) {
        m_commands.perform("VIEW", {"FIT"});
    }
}

void ViewActions::setPerspective(bool perspective) {
    if (const host::Frame* const frame = spatialFrameWithData(m_commands.session())) {
        setView(m_commands, withPerspective(frame->view, perspective, frame->placement.aspect()));
    }
    refresh();
}

void ViewActions::addTo(QToolBar& bar) const {
    bar.addAction(m_fit);
    const struct {
        Icon icon;
        qsizetype positive;
    } axes[] = {{Icon::AxisX, 0}, {Icon::AxisY, 2}, {Icon::AxisZ, 4}};
    for (const auto& axis : axes) {
        QAction* const action = m_axes[axis.positive];
        action->setIcon(icon(axis.icon));
        action->setIconVisibleInMenu(false);
        action->setToolTip(tr("Look %1 (%2)")
                               .arg(action->text().remove(QLatin1Char('&')).toLower(),
                                    action->shortcut().toString()));
        bar.addAction(action);
    }
    bar.addAction(m_perspective);
}

void ViewActions::refresh() {
    const host::Frame* const frame = spatialFrameWithData(m_commands.session());
    for (QAction* const action : m_axes + QList<QAction*>{m_fit, m_corner, m_perspective}) {
        action->setEnabled(frame != nullptr);
    }
    m_perspective->setChecked(frame != nullptr && frame->view.perspective);
}

} // namespace corvane::gui
