// The toolkit that shows the dialogs and controls of add-ons.
#pragma once

#include "host/core/controls/Control.h"

namespace corvane::host {

class ControlActions;

/// What of a control has changed, and is to be shown as it is now.
enum class ControlChange {
    Text,        ///< of a label or text field
    Rows,        ///< texts and number of rows of a list
    Selection,   ///< of a list
    Items,       ///< of an option menu
    Choice,      ///< of an option menu or radio box
    State,       ///< of a toggle
    Sensitivity, ///< of any control
    ToolTip      ///< of any control
};

/// Controls decides, and a toolkit shows: it reads what there is to show from the control, tells
/// ControlActions what the user does, and shows the control as it is when told of a change,
/// whatever the user has made of it. Nothing that it is asked to show counts as the user's doing.
/// Controls live, at the same address, until close().
class Widgets {
public:
    virtual ~Widgets() = default;

    /// Called once, before all others, with the one to tell what the user does.
    virtual void attach(ControlActions& actions) = 0;

    /// A new control; dialogs are hidden at first. The dialog of a control, and the menu of an
    /// entry have been added before.
    virtual void add(const Dialog& dialog) = 0;
    virtual void add(const Button& button) = 0;
    virtual void add(const Label& label) = 0;
    virtual void add(const GroupBox& box) = 0;
    virtual void add(const TextField& field) = 0;
    virtual void add(const SpinField& field) = 0;
    virtual void add(const Toggle& toggle) = 0;
    virtual void add(const List& list) = 0;
    virtual void add(const OptionMenu& menu) = 0;
    virtual void add(const RadioBox& box) = 0;
    virtual void add(const MenuBar& bar) = 0;
    virtual void add(const Menu& menu) = 0;
    virtual void add(const MenuItem& item) = 0;
    virtual void add(const MenuToggle& toggle) = 0;
    virtual void addSeparator(const Menu& menu) = 0;

    /// Called for each row that is appended: collect what is expensive.
    virtual void changed(const Control& control, ControlChange change) = 0;

    /// Returns at once, for a modal dialog too.
    virtual void show(const Dialog& dialog) = 0;
    virtual void raise(const Dialog& dialog) = 0;
    virtual void hide(const Dialog& dialog) = 0;

    /// Takes everything away, for good.
    virtual void close() = 0;
};

} // namespace corvane::host
