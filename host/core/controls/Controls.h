// The dialogs and controls of add-ons, by handle, and what add-ons do with them.
#pragma once

#include "host/core/addons/AddOnCaller.h"
#include "host/core/controls/Control.h"
#include "host/core/controls/Widgets.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace corvane::host {

/// Nothing here calls an add-on, except that launch() calls init: a control that an add-on sets is
/// set, and that is all. What users do is the business of ControlActions.
class Controls {
public:
    /// toolkit may be null: there are no windows. caller calls the add-ons.
    explicit Controls(Widgets* toolkit, AddOnCaller caller = callPlainly)
        : m_toolkit(toolkit), m_caller(std::move(caller)) {}
    ~Controls();
    Controls(const Controls&) = delete;
    Controls& operator=(const Controls&) = delete;

    /// False in a run without windows, and after close(): there are no controls then.
    bool areThere() const { return m_toolkit != nullptr; }

    /// Null when there is none, or one of another kind. A spin field is a text field, too.
    template <class T>
    T* find(int handle) const;
    /// All that there are, in the order of their making.
    const std::vector<std::unique_ptr<Control>>& all() const { return m_controls; }

    /// The handle; COR_HANDLE_NOT_CREATED without the parent, or without windows.
    int createDialog(int parent, Dialog dialog);
    /// Takes over a control that knows its box, label and callbacks.
    template <class T>
    int add(Dialog& dialog, T control);
    /// A dialog has one menu bar; further ones are the same.
    int addMenuBar(Dialog& dialog);
    int addMenu(MenuParent& parent, std::string label);
    template <class T>
    int addEntry(Menu& menu, T entry);
    void addSeparator(Menu& menu);

    void launch(Dialog& dialog);
    void drop(Dialog& dialog);
    /// Whether a modal dialog that came up later keeps the user from it.
    bool isBlocked(const Dialog& dialog) const;
    /// How many modal dialogs came up, and how many went, so far.
    int modalLaunches() const { return m_modalLaunches; }
    int modalDrops() const { return m_modalDrops; }

    void setLabel(Label& label, std::string text);
    void setText(TextField& field, std::string text);
    void setState(Toggle& toggle, bool isOn);
    void setState(MenuToggle& toggle, bool isOn);
    void setSensitivity(Control& control, bool isSensitive);
    void setToolTip(Control& control, std::string text);

    void appendRow(List& list, std::string text);
    void deleteRow(List& list, long position);
    void replaceRow(List& list, long position, std::string text);
    void deleteAllRows(List& list);
    /// Takes positions in any order; leaves out those that are not there, and all but the first one
    /// where only one row can be selected.
    void select(List& list, std::vector<long> positions);
    /// None while the list is dimmed.
    static std::vector<long> selectionOf(const List& list);

    void appendItem(OptionMenu& menu, std::string text);
    void deleteAllItems(OptionMenu& menu);
    void choose(OptionMenu& menu, long position); ///< outside of the menu nothing happens
    void choose(RadioBox& box, long position);    ///< 0: none; beyond the last nothing happens

    /// To be called by ControlActions: what a text field shows while the user types.
    void edit(TextField& field, std::string text) const { field.shown = std::move(text); }
    /// Shows what a control is, whatever the user has made of it.
    void show(const Control& control, ControlChange change) const;

    /// The call is about this control, for the trace.
    void callAddOn(const Control& control, const std::function<void()>& call) const;

    /// Takes all windows away, for good. Nothing can be made afterwards.
    void close();

private:
    template <class T>
    T& adopt(T control);

    Widgets* m_toolkit;
    AddOnCaller m_caller;
    std::vector<std::unique_ptr<Control>> m_controls; ///< handles are indices
    std::vector<Dialog*> m_modal;                     ///< those that are up, the latest one last
    int m_modalLaunches = 0;
    int m_modalDrops = 0;
};

template <class T>
T* Controls::find(int handle) const {
    const auto index = static_cast<std::size_t>(handle);
    const bool exists = m_toolkit != nullptr && handle >= 0 && index < m_controls.size();
    return exists ? dynamic_cast<T*>(m_controls[index].get()) : nullptr;
}

template <class T>
T& Controls::adopt(T control) {
    auto owned = std::make_unique<T>(std::move(control));
    T& adopted = *owned;
    adopted.handle = static_cast<int>(m_controls.size());
    m_controls.push_back(std::move(owned));
    return adopted;
}

template <class T>
int Controls::add(Dialog& dialog, T control) {
    control.dialog = &dialog;
    const T& added = adopt(std::move(control));
    m_toolkit->add(added);
    return added.handle;
}

template <class T>
int Controls::addEntry(Menu& menu, T entry) {
    entry.dialog = menu.dialog;
    entry.menu = &menu;
    const T& added = adopt(std::move(entry));
    menu.entries.push_back(&added);
    m_toolkit->add(added);
    return added.handle;
}

} // namespace corvane::host
