#include "host/gui/menus/HelpActions.h"

#include "host/gui/commands/MenuActions.h"
#include "host/gui/menus/AboutBox.h"
#include "host/gui/menus/KeyHelp.h"
#include "host/gui/window/MainWindow.h"

namespace corvane::gui {

HelpActions::HelpActions(const Commands& commands, MainWindow& window)
    : m_commands(commands), m_window(window) {
    QMenu& menu = window.menu(QStringLiteral("Help"));
    addAction(
        menu, tr("&Mouse and Keys"), [this] { showKeys(); }, QKeySequence(Qt::Key_F1));
    menu.addSeparator();
    addAction(menu, tr("&About Corvane and Its Add-Ons"), [this] { showAbout(); });
}

void HelpActions::showKeys() {
    KeyHelp(&m_window).exec();
}

void HelpActions::showAbout() {
    AboutBox(m_commands.session(), &m_window).exec();
}

} // namespace corvane::gui
