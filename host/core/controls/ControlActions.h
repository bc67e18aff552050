// What users do with the dialogs and controls of add-ons.
#pragma once

#include "host/core/controls/Control.h"

#include <string>
#include <vector>

namespace corvane::host {

class Controls;

/// Toolkits call these when the user acts. Whatever the user cannot reach (a control that is dimmed
/// or of another kind, a dialog that is hidden or behind a modal one) is left alone. Before an
/// add-on is told of anything, text that is being edited in the same dialog is committed; when it
/// is refused, the action does not happen, and the control is shown as it was.
class ControlActions {
public:
    explicit ControlActions(Controls& controls) : m_controls(controls) {}

    void press(int button);
    /// An item of a menu.
    void trigger(int menuItem);
    /// A toggle in a dialog or in a menu.
    void switchTo(int toggle, bool isOn);
    /// Positions from 1; in any order.
    void select(int list, std::vector<long> positions);
    /// An item of an option menu or radio box.
    void choose(int optionMenuOrRadioBox, long position);
    void step(int spinField, bool isUp);

    /// Each change of the text of a field.
    void edit(int field, const std::string& text);
    /// The focus leaves a field.
    void commit(int field);
    /// Return in a field: commits what was edited, or else is OK.
    void enter(int field);

    void ok(int dialog); ///< of modal dialogs; also Return outside of text fields
    void apply(int dialog);
    void help(int dialog);
    /// Cancel or Close, the window's own button, or Esc. The dialog stays up until it is dropped.
    void dismiss(int dialog);

    /// Whether the user can use it now.
    bool isReachable(const Control& control) const;

private:
    template <class T>
    T* reachable(int handle) const;
    bool commit(TextField& field);
    bool flush(const Dialog& dialog, const Control* except);
    bool prepare(const Control& control);
    void tell(const Control& control, const OnPress& callback);
    void tellPosition(const Control& control, const OnPosition& callback, long position);
    template <class T>
    void switchOne(T& toggle, bool isOn);
    template <class T>
    void chooseIn(T& control, long position);

    Controls& m_controls;
};

} // namespace corvane::host
