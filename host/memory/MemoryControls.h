// The controls of add-ons as a user of the tests sees and uses them.
#pragma once

#include "host/core/controls/Control.h"
#include "host/core/controls/ControlActions.h"

#include <string>
#include <vector>

namespace corvane::memory {

/// One control. Copies mean the same one; it must not be used after the host has gone. What a user
/// cannot do, because the control is dimmed, its dialog hidden or behind a modal one, throws
/// std::logic_error. Labels are compared without '&', line breaks and padding: "Animate All".
template <class T>
class MemoryControl {
public:
    MemoryControl(const T& control, host::ControlActions& actions)
        : m_control(&control), m_actions(&actions) {}

    int handle() const { return m_control->handle; }
    const std::string& label() const { return m_control->label; } ///< as it was given
    const std::string& toolTip() const { return m_control->toolTip; }
    bool isSensitive() const { return !host::isDimmed(*m_control); }
    const T& control() const { return *m_control; }

protected:
    /// The actions, for a user who can reach the control.
    host::ControlActions& act() const;

private:
    const T* m_control;
    host::ControlActions* m_actions;
};

/// Throws std::logic_error with the reason when the user cannot reach it.
void requireReachable(const host::Control& control, const host::ControlActions& actions);
/// Without '&', line breaks and padding.
std::string plainLabel(const std::string& label);

template <class T>
host::ControlActions& MemoryControl<T>::act() const {
    requireReachable(*m_control, *m_actions);
    return *m_actions;
}

class MemoryLabel : public MemoryControl<host::Label> {
public:
    using MemoryControl::MemoryControl;
};

class MemoryGroupBox : public MemoryControl<host::GroupBox> {
public:
    using MemoryControl::MemoryControl;
};

class MemoryButton : public MemoryControl<host::Button> {
public:
    using MemoryControl::MemoryControl;
    void click() const { act().press(handle()); }
};

class MemoryField : public MemoryControl<host::TextField> {
public:
    using MemoryControl::MemoryControl;
    const std::string& text() const { return control().shown; }
    /// Replaces the text, and stays in the field.
    void type(const std::string& text) const { act().edit(handle(), text); }
    /// Leaves the field.
    void commit() const { act().commit(handle()); }
    void pressReturn() const { act().enter(handle()); }
};

class MemorySpinField : public MemoryField {
public:
    using MemoryField::MemoryField;
    void up() const { act().step(handle(), true); }
    void down() const { act().step(handle(), false); }
};

class MemoryToggle : public MemoryControl<host::Toggle> {
public:
    using MemoryControl::MemoryControl;
    bool isOn() const { return control().isOn; }
    void click() const { act().switchTo(handle(), !isOn()); }
};

class MemoryList : public MemoryControl<host::List> {
public:
    using MemoryControl::MemoryControl;
    const std::vector<std::string>& rows() const { return control().rows; }
    const std::vector<long>& selection() const {
        return control().selection;
    } ///< ascending, from 1
    void select(std::vector<long> positions) const;
};

class MemoryOptionMenu : public MemoryControl<host::OptionMenu> {
public:
    using MemoryControl::MemoryControl;
    const std::vector<std::string>& items() const { return control().items; }
    long chosen() const { return control().chosen(); } ///< from 1, 0 for none
    std::string chosenText() const;                    ///< empty for none
    void choose(long position) const;
    void choose(const std::string& item) const;
};

class MemoryRadioBox : public MemoryControl<host::RadioBox> {
public:
    using MemoryControl::MemoryControl;
    const std::vector<std::string>& items() const { return control().items; } ///< as given
    long chosen() const { return control().chosen; } ///< from 1, 0 for none
    void choose(long position) const;
    void choose(const std::string& label) const;
};

class MemoryMenuItem : public MemoryControl<host::MenuItem> {
public:
    using MemoryControl::MemoryControl;
    const std::string& help() const { return control().help; }
    void choose() const { act().trigger(handle()); }
};

class MemoryMenuToggle : public MemoryControl<host::MenuToggle> {
public:
    using MemoryControl::MemoryControl;
    const std::string& help() const { return control().help; }
    bool isOn() const { return control().isOn; }
    void choose() const { act().switchTo(handle(), !isOn()); }
};

class MemoryMenu : public MemoryControl<host::Menu> {
public:
    MemoryMenu(const host::Menu& menu, host::ControlActions& actions)
        : MemoryControl(menu, actions), m_actions(&actions) {}

    /// From the top, as they were given; "-" for a separator.
    std::vector<std::string> entries() const;
    MemoryMenuItem item(const std::string& label) const;
    MemoryMenuToggle toggle(const std::string& label) const;
    MemoryMenu menu(const std::string& label) const;

private:
    host::ControlActions* m_actions;
};

} // namespace corvane::memory
