#include "host/gui/menus/FrameActions.h"

#include "host/core/Host.h"
#include "host/core/base/Text.h"
#include "host/gui/commands/MenuActions.h"
#include "host/gui/window/MainWindow.h"

namespace corvane::gui {

FrameActions::FrameActions(const Commands& commands, MainWindow& window) : m_commands(commands) {
    QMenu& menu = window.menu(QStringLiteral("Frame"));
    m_needAFrame = {addAction(menu, tr("New Frame &Beside"), [this] { split(Side::Right); }),
                    addAction(menu, tr("New Frame Be&low"), [this] { split(Side::Bottom); })};
    menu.addSeparator();
    m_needTwo = {
        addAction(menu, tr("Bring to &Front"), [this] { m_commands.perform("FRAME", {"POP"}); }),
        addAction(menu, tr("Send to Bac&k"), [this] { m_commands.perform("FRAME", {"PUSH"}); })};
    menu.addSeparator();
    m_needTwo.push_back(
        addAction(menu, tr("&Delete Frame"), [this] { m_commands.perform("FRAME", {"DELETE"}); }));
    refresh();
}

void FrameActions::split(Side side) {
    const host::Frame* const frame = m_commands.session().page().active();
    if (frame == nullptr) {
        return;
    }
    host::Placement half = frame->placement;
    double& extent = side == Side::Right ? half.width : half.height;
    extent /= 2.0;
    const char* const extentName = side == Side::Right ? "Width" : "Height";
    if (!m_commands.perform("FRAME", {"PLACE", extentName, "=", host::exactText(extent)})) {
        return;
    }
    (side == Side::Right ? half.x : half.y) += extent;
    m_commands.perform("FRAME", {"CREATE", "X", "=", host::exactText(half.x), "Y", "=",
                                 host::exactText(half.y), "Width", "=", host::exactText(half.width),
                                 "Height", "=", host::exactText(half.height)});
}

void FrameActions::refresh() {
    const std::size_t frames = m_commands.session().page().frames().size();
    for (QAction* const action : m_needAFrame) {
        action->setEnabled(frames > 0);
    }
    for (QAction* const action : m_needTwo) {
        action->setEnabled(frames > 1);
    }
}

} // namespace corvane::gui
