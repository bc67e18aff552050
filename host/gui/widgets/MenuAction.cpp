#include "host/gui/widgets/MenuAction.h"

#include "host/gui/base/QtText.h"
#include "host/gui/widgets/PlainText.h"

namespace corvane::gui {

namespace {

QAction* makeEntry(const host::MenuEntry& entry, QObject* parent) {
    auto* const action = new QAction(toQt(entry.label), parent);
    action->setStatusTip(toQt(entry.help));
    showToolTip(*action, entry);
    return action;
}

} // namespace

void showToolTip(QAction& action, const host::Control& control) {
    const auto* const entry = dynamic_cast<const host::MenuEntry*>(&control);
    const bool isHelp = control.toolTip.empty() && entry != nullptr;
    action.setToolTip(plainToolTip(isHelp ? entry->help : control.toolTip));
}

QAction* makeAction(const host::MenuItem& item, host::ControlActions& actions, QObject* parent) {
    QAction* const action = makeEntry(item, parent);
    QObject::connect(action, &QAction::triggered, action,
                     [&item, &actions] { actions.trigger(item.handle); });
    return action;
}

QAction* makeAction(const host::MenuToggle& toggle, host::ControlActions& actions,
                    QObject* parent) {
    QAction* const action = makeEntry(toggle, parent);
    action->setCheckable(true);
    QObject::connect(action, &QAction::triggered, action,
                     [&toggle, &actions](bool isOn) { actions.switchTo(toggle.handle, isOn); });
    return action;
}

} // namespace corvane::gui
