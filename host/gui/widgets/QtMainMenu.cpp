#include "host/gui/widgets/QtMainMenu.h"

#include "host/gui/base/QtText.h"
#include "host/gui/widgets/PlainText.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace corvane::gui {

QMenu* QtMainMenu::find(const QString& title) const {
    const QList<QAction*> entries = m_bar->actions();
    for (QAction* entry : entries) {
        QMenu* const menu = entry->menu();
        if (menu != nullptr && withoutAmpersands(entry->text()) == title) {
            return menu;
        }
    }
    return nullptr;
}

QMenu* QtMainMenu::make(const QString& title) {
    auto* const menu = new QMenu(title, m_bar);
    QMenu* const help = find(QStringLiteral("Help"));
    m_bar->insertMenu(help != nullptr ? help->menuAction() : nullptr, menu);
    return menu;
}

void QtMainMenu::add(const host::MenuOption& option) {
    if (!m_bar) {
        return;
    }
    const QString title = toQt(option.menu);
    QMenu* const found = find(title);
    QMenu* const menu = found != nullptr ? found : make(title);
    auto* const action = new QAction(toQt(option.label), menu);
    action->setEnabled(option.isSensitive);
    QObject::connect(action, &QAction::triggered, action, [&option] { option.chosen(); });
    menu->addAction(action);
    m_actions[&option] = action;
}

void QtMainMenu::changed(const host::MenuOption& option) {
    if (QAction* const action = m_actions[&option]) {
        action->setEnabled(option.isSensitive);
    }
}

void QtMainMenu::close() {
    for (const auto& [option, action] : m_actions) {
        if (action) {
            action->setVisible(false);
            action->disconnect();
            action->deleteLater(); // it may be the one that is being triggered
        }
    }
    m_actions.clear();
}

} // namespace corvane::gui
