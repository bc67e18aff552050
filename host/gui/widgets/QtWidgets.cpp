#include "host/gui/widgets/QtWidgets.h"

#include "host/gui/base/QtText.h"
#include "host/gui/widgets/DialogWindow.h"
#include "host/gui/widgets/FieldEdit.h"
#include "host/gui/widgets/MenuAction.h"
#include "host/gui/widgets/OptionBox.h"
#include "host/gui/widgets/PlainText.h"
#include "host/gui/widgets/RadioColumn.h"
#include "host/gui/widgets/RowsView.h"
#include "host/gui/widgets/SpinEdit.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <utility>

namespace corvane::gui {

using host::ControlChange;

QtWidgets::~QtWidgets() {
    for (const auto& [handle, window] : m_windows) {
        delete window.data();
    }
}

void QtWidgets::close() {
    m_shown.clear();
    for (const auto& [handle, window] : m_windows) {
        if (window) {
            window->hide();
            window->deleteLater(); // one of its buttons may be the one that is being pressed
        }
    }
}

QWidget* QtWidgets::widget(int handle) const {
    const auto found = m_shown.find(handle);
    return found != m_shown.end() ? found->second.widget.data() : nullptr;
}

QAction* QtWidgets::action(int handle) const {
    const auto found = m_shown.find(handle);
    return found != m_shown.end() ? found->second.action.data() : nullptr;
}

DialogWindow& QtWidgets::window(const host::Dialog& dialog) const {
    return *m_windows.at(dialog.handle);
}

QMenu& QtWidgets::menuOf(const host::Control& menu) const {
    return *qobject_cast<QMenu*>(m_shown.at(menu.handle).widget.data());
}

void QtWidgets::place(QWidget* widget, const host::PlacedControl& control,
                      std::function<void(ControlChange)> follow) {
    window(*control.dialog).area().add(widget, control);
    m_shown[control.handle] = {widget, nullptr, std::move(follow)};
}

void QtWidgets::enter(QAction* action, const host::MenuEntry& entry,
                      std::function<void(ControlChange)> follow) {
    menuOf(*entry.menu).addAction(action);
    m_shown[entry.handle] = {nullptr, action, std::move(follow)};
}

void QtWidgets::add(const host::Dialog& dialog) {
    QWidget* const parent =
        dialog.parent != nullptr ? &window(*dialog.parent) : m_mainWindow.data();
    auto* const made = new DialogWindow(dialog, *m_actions, parent);
    m_windows[dialog.handle] = made;
    m_shown[dialog.handle] = {made, nullptr, {}};
}

void QtWidgets::add(const host::Button& button) {
    auto* const made = new QPushButton(toQt(button.label), &window(*button.dialog).area());
    made->setAutoDefault(false); // Return means OK or nothing
    QObject::connect(made, &QPushButton::clicked, made,
                     [this, handle = button.handle] { m_actions->press(handle); });
    place(made, button);
}

void QtWidgets::add(const host::Label& label) {
    ControlArea& area = window(*label.dialog).area();
    auto* const made = new QLabel(&area);
    made->setTextFormat(Qt::PlainText);
    made->setText(toQt(label.label));
    place(made, label, [made, &label, &area](ControlChange) {
        made->setText(toQt(label.label));
        area.place();
    });
}

void QtWidgets::add(const host::GroupBox& box) {
    auto* const made = new QGroupBox(withoutMnemonics(box.label), &window(*box.dialog).area());
    made->lower(); // the controls inside may have been added before
    place(made, box);
}

void QtWidgets::add(const host::TextField& field) {
    auto* const made = new FieldEdit(field, *m_actions, &window(*field.dialog).area());
    place(made, field, [made](ControlChange) { made->showText(); });
}

void QtWidgets::add(const host::SpinField& field) {
    auto* const made = new SpinEdit(field, *m_actions, &window(*field.dialog).area());
    place(made, field, [made](ControlChange) { made->showText(); });
}

void QtWidgets::add(const host::Toggle& toggle) {
    auto* const made = new QCheckBox(toQt(toggle.label), &window(*toggle.dialog).area());
    QObject::connect(made, &QCheckBox::clicked, made, [this, handle = toggle.handle](bool isOn) {
        m_actions->switchTo(handle, isOn);
    });
    place(made, toggle, [made, &toggle](ControlChange) { made->setChecked(toggle.isOn); });
}

void QtWidgets::add(const host::List& list) {
    auto* const made = new RowsView(list, *m_actions, &window(*list.dialog).area());
    place(made, list, [made](ControlChange) { made->showLater(); });
}

void QtWidgets::add(const host::OptionMenu& menu) {
    auto* const made = new OptionBox(menu, *m_actions, &window(*menu.dialog).area());
    place(made, menu, [made](ControlChange change) {
        if (change == ControlChange::Items) {
            made->showItems();
        } else {
            made->showChoice();
        }
    });
}

void QtWidgets::add(const host::RadioBox& box) {
    auto* const made = new RadioColumn(box, *m_actions, &window(*box.dialog).area());
    place(made, box, [made](ControlChange) { made->showChoice(); });
}

void QtWidgets::add(const host::MenuBar& bar) {
    m_shown[bar.handle] = {window(*bar.dialog).addMenuBar(), nullptr, {}};
}

void QtWidgets::add(const host::Menu& menu) {
    QWidget* const parent = m_shown.at(menu.parent->handle).widget;
    auto* const made = new QMenu(toQt(menu.label), parent);
    made->setToolTipsVisible(true);
    parent->addAction(made->menuAction());
    m_shown[menu.handle] = {made, made->menuAction(), {}};
}

void QtWidgets::add(const host::MenuItem& item) {
    enter(makeAction(item, *m_actions, &menuOf(*item.menu)), item);
}

void QtWidgets::add(const host::MenuToggle& toggle) {
    QAction* const made = makeAction(toggle, *m_actions, &menuOf(*toggle.menu));
    enter(made, toggle, [made, &toggle](ControlChange) { made->setChecked(toggle.isOn); });
}

void QtWidgets::addSeparator(const host::Menu& menu) {
    menuOf(menu).addSeparator();
}

void QtWidgets::changed(const host::Control& control, ControlChange change) {
    const Shown& shown = m_shown.at(control.handle);
    if (change == ControlChange::Sensitivity) {
        if (shown.action) {
            shown.action->setEnabled(control.isSensitive);
        } else if (shown.widget) {
            shown.widget->setEnabled(control.isSensitive);
        }
    } else if (change == ControlChange::ToolTip) {
        if (shown.action) {
            showToolTip(*shown.action, control);
        } else if (shown.widget) {
            shown.widget->setToolTip(plainToolTip(control.toolTip));
        }
    } else if (shown.follow && (shown.widget || shown.action)) {
        shown.follow(change);
    }
}

void QtWidgets::show(const host::Dialog& dialog) {
    window(dialog).show();
}

void QtWidgets::raise(const host::Dialog& dialog) {
    window(dialog).raise();
    window(dialog).activateWindow();
}

void QtWidgets::hide(const host::Dialog& dialog) {
    window(dialog).hide();
}

} // namespace corvane::gui
