// The menu entries of a dialog of an add-on, as actions.
#pragma once

#include "host/core/controls/Control.h"
#include "host/core/controls/ControlActions.h"

#include <QAction>

namespace corvane::gui {

/// The tool tip of an entry is its help, unless it has one of its own.
QAction* makeAction(const host::MenuItem& item, host::ControlActions& actions, QObject* parent);
QAction* makeAction(const host::MenuToggle& toggle, host::ControlActions& actions, QObject* parent);
void showToolTip(QAction& action, const host::Control& entry);

} // namespace corvane::gui
