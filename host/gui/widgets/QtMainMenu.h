// Shows the menu options of add-ons in the menu bar of the main window.
#pragma once

#include "host/core/controls/MainMenu.h"

#include <QPointer>
#include <map>

class QAction;
class QMenu;
class QMenuBar;

namespace corvane::gui {

class QtMainMenu : public host::MainMenu {
public:
    explicit QtMainMenu(QMenuBar& bar) : m_bar(&bar) {}

    /// A new menu is inserted before the Help menu, or appended without one.
    void add(const host::MenuOption& option) override;
    void changed(const host::MenuOption& option) override;
    void close() override;

private:
    QMenu* find(const QString& title) const;
    QMenu* make(const QString& title);

    QPointer<QMenuBar> m_bar;
    std::map<const host::MenuOption*, QPointer<QAction>> m_actions;
};

} // namespace corvane::gui
