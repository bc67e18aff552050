// Shows the dialogs and controls of add-ons, in Qt.
#pragma once

#include "host/core/controls/Widgets.h"

#include <QPointer>
#include <functional>
#include <map>

class QAction;
class QMenu;
class QMenuBar;
class QWidget;

namespace corvane::gui {

class DialogWindow;

/// The QApplication must outlive it.
class QtWidgets : public host::Widgets {
public:
    /// Dialogs stay above the main window.
    explicit QtWidgets(QWidget& mainWindow) : m_mainWindow(&mainWindow) {}
    ~QtWidgets() override;

    /// The window of a dialog and the widget of a control, for tests; null without one.
    QWidget* widget(int handle) const;
    QAction* action(int handle) const; ///< of menus and their entries

    void attach(host::ControlActions& actions) override { m_actions = &actions; }
    void add(const host::Dialog& dialog) override;
    void add(const host::Button& button) override;
    void add(const host::Label& label) override;
    void add(const host::GroupBox& box) override;
    void add(const host::TextField& field) override;
    void add(const host::SpinField& field) override;
    void add(const host::Toggle& toggle) override;
    void add(const host::List& list) override;
    void add(const host::OptionMenu& menu) override;
    void add(const host::RadioBox& box) override;
    void add(const host::MenuBar& bar) override;
    void add(const host::Menu& menu) override;
    void add(const host::MenuItem& item) override;
    void add(const host::MenuToggle& toggle) override;
    void addSeparator(const host::Menu& menu) override;
    void changed(const host::Control& control, host::ControlChange change) override;
    void show(const host::Dialog& dialog) override;
    void raise(const host::Dialog& dialog) override;
    void hide(const host::Dialog& dialog) override;
    void close() override;

private:
    /// What shows a control, and how it follows changes that are specific to the kind of control.
    struct Shown {
        QPointer<QWidget> widget;
        QPointer<QAction> action;
        std::function<void(host::ControlChange)> follow;
    };
    DialogWindow& window(const host::Dialog& dialog) const;
    QMenu& menuOf(const host::Control& menu) const;
    void place(QWidget* widget, const host::PlacedControl& control,
               std::function<void(host::ControlChange)> follow = {});
    void enter(QAction* action, const host::MenuEntry& entry,
               std::function<void(host::ControlChange)> follow = {});

    QPointer<QWidget> m_mainWindow;
    host::ControlActions* m_actions = nullptr;
    std::map<int, Shown> m_shown; ///< by handle
    std::map<int, QPointer<DialogWindow>> m_windows;
};

} // namespace corvane::gui
