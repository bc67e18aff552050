// What is known of the dialogs and controls of add-ons. Everything that a user sees of them, and
// everything that an add-on is told, comes from here; toolkits only show it.
#pragma once

#include "hostapi/CorTypes.h"

#include <functional>
#include <string>
#include <vector>

namespace corvane::host {

struct Dialog;
struct Menu;

/// In dialog units: 100 are an average character across, and a line of text down.
struct Box {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

/// Callbacks of an add-on. Any of them may be empty.
using OnPress = std::function<void()>;
using OnText = std::function<bool(const std::string&)>; ///< false: the text is refused
using OnPosition = std::function<void(long)>;           ///< from 1
using OnState = std::function<void(bool)>;

struct Control {
    Control() = default;
    virtual ~Control() = default;
    Control(Control&&) = default;
    Control& operator=(Control&&) = delete;

    int handle = COR_HANDLE_NOT_CREATED;
    Dialog* dialog = nullptr; ///< that it is in; a dialog is in itself
    std::string label;        ///< or the title of a dialog
    std::string toolTip;
    bool isSensitive = true; ///< see isDimmed() for whether it can be used
};

/// One that has its place in a dialog. A label has no size: it takes what its text needs.
struct PlacedControl : Control {
    Box box;
};

struct Dialog : Control {
    std::string owner;              ///< the add-on, for the trace; empty when it is not known
    const Dialog* parent = nullptr; ///< null: the main window
    int width = 0;                  ///< of the area of the controls, in dialog units
    int height = 0;
    bool isModal = false;
    bool isUp = false;
    OnPress onInit;
    OnPress onOk;      ///< of modal dialogs
    OnPress onApply;   ///< empty: there is no Apply
    OnPress onDismiss; ///< cancel of a modal dialog, close of another
    OnPress onHelp;    ///< empty: there is no Help
};

struct Button : PlacedControl {
    OnPress onPress;
};

struct Label : PlacedControl {};

struct GroupBox : PlacedControl {};

struct TextField : PlacedControl {
    std::string shown;
    std::string committed; ///< what was committed or set last
    OnText onText;

    bool isPending() const { return shown != committed; }
};

struct SpinField : TextField {
    OnPress onUp;
    OnPress onDown;
};

struct Toggle : PlacedControl {
    bool isOn = false;
    OnState onState;
};

struct List : PlacedControl {
    bool isMulti = false;
    std::vector<std::string> rows;
    std::vector<long> selection; ///< positions, ascending
    OnPosition onPosition;       ///< the first selected one, 0 for none
};

struct OptionMenu : PlacedControl {
    std::vector<std::string> items;
    /// Stays when the items go: it counts again when there are that many again.
    long wanted = 1;
    OnPosition onPosition;

    long chosen() const {
        const long count = static_cast<long>(items.size());
        return wanted <= count ? wanted : (count > 0 ? 1 : 0);
    }
};

struct RadioBox : PlacedControl {
    std::vector<std::string> items;
    long chosen = 0; ///< 0: none is on
    OnPosition onPosition;
};

/// Menu bars and menus.
struct MenuParent : Control {
    std::vector<const Control*> entries; ///< from the top; null is a separator
};

struct MenuBar : MenuParent {};

struct Menu : MenuParent {
    const MenuParent* parent = nullptr;
};

struct MenuEntry : Control {
    const Menu* menu = nullptr;
    std::string help; ///< a sentence for the status line
};

struct MenuItem : MenuEntry {
    OnPress onPress;
};

struct MenuToggle : MenuEntry {
    bool isOn = false;
    OnState onState;
};

/// Whether it, or what it is in, was made insensitive.
bool isDimmed(const Control& control);

/// For the trace: "OK" of the dialog "Options" of libFlight.so.
std::string nameInTrace(const Control& control);

} // namespace corvane::host
