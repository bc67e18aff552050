// Helpers for filling menus.
#pragma once

#include <QAction>
#include <QMenu>
#include <QString>
#include <utility>

namespace corvane::gui {

template <typename Slot>
QAction* addAction(QMenu& menu, const QString& text, Slot slot, const QKeySequence& keys = {}) {
    QAction* const action = menu.addAction(text);
    action->setShortcut(keys);
    QObject::connect(action, &QAction::triggered, action, std::move(slot));
    return action;
}

/// Limits the action's shortcuts to this widget, so that they do not interfere with typing and with
/// buttons elsewhere.
inline void keepKeysTo(QWidget& widget, QAction& action) {
    action.setShortcutContext(Qt::WidgetShortcut);
    widget.addAction(&action);
}

} // namespace corvane::gui
