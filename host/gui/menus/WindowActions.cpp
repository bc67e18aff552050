#include "host/gui/menus/WindowActions.h"

#include "host/core/Host.h"
#include "host/gui/base/Appearance.h"
#include "host/gui/base/Icons.h"
#include "host/gui/commands/MenuActions.h"
#include "host/gui/panels/DataInformation.h"
#include "host/gui/window/MainWindow.h"

#include <QActionGroup>
#include <QDockWidget>
#include <QSettings>

namespace corvane::gui {

namespace {

QString appearanceKey() {
    return QStringLiteral("appearance");
}

} // namespace

WindowActions::WindowActions(const Commands& commands, MainWindow& window, QDockWidget& sidebar)
    : m_commands(commands), m_window(window), m_sidebar(sidebar.toggleViewAction()) {
    QMenu& view = window.menu(QStringLiteral("View"));
    m_sidebar->setText(tr("&Sidebar"));
    m_sidebar->setIcon(icon(Icon::Sidebar));
    m_sidebar->setToolTip(tr("Sidebar (F9)"));
    m_sidebar->setShortcut(QKeySequence(Qt::Key_F9));
    view.addAction(m_sidebar);
    QAction* const fullScreen = addAction(
        view, tr("F&ull Screen"), [this](bool isFull) { setFullScreen(isFull); },
        QKeySequence(Qt::Key_F11));
    fullScreen->setCheckable(true);
    addAppearances();
    m_data = addAction(
        window.menu(QStringLiteral("Data")), tr("&Information…"), [this] { showData(); },
        QKeySequence(Qt::CTRL | Qt::Key_I));
}

void WindowActions::addAppearances() {
    QMenu* const menu = m_window.menu(QStringLiteral("View")).addMenu(tr("C&olours of the Window"));
    auto* const group = new QActionGroup(this);
    const Appearance kept = appearanceNamed(QSettings().value(appearanceKey()).toString());
    applyAppearance(kept);
    const struct {
        Appearance appearance;
        QString text;
    } choices[] = {{Appearance::System, tr("&Like the Desktop")},
                   {Appearance::Light, tr("L&ight")},
                   {Appearance::Dark, tr("&Dark")}};
    for (const auto& choice : choices) {
        QAction* const action = addAction(*menu, choice.text, [appearance = choice.appearance] {
            QSettings().setValue(appearanceKey(), nameOf(appearance));
            applyAppearance(appearance);
        });
        action->setCheckable(true);
        action->setChecked(choice.appearance == kept);
        group->addAction(action);
    }
}

void WindowActions::showData() {
    const host::Frame* const frame = m_commands.session().page().active();
    if (frame != nullptr && frame->data()) {
        DataInformation(*frame->data(), &m_window).exec();
    }
}

void WindowActions::setFullScreen(bool isFull) {
    if (isFull) {
        m_window.showFullScreen();
    } else {
        m_window.showNormal();
    }
}

void WindowActions::refresh() {
    const host::Frame* const frame = m_commands.session().page().active();
    m_data->setEnabled(frame != nullptr && frame->data());
}

} // namespace corvane::gui
