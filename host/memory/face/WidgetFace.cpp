// Menus, dialogs and controls of a host in memory.
#include "host/memory/face/MemoryHostHandle.h"

#include <algorithm>

using namespace corvane;
using namespace corvane::memory;

namespace {

const host::MenuOption& optionOf(MemoryHost& host, const char* menu, const char* label) {
    const std::string wantedMenu = plainLabel(required(menu, "menu"));
    const std::string wantedLabel = plainLabel(required(label, "label"));
    for (const auto& option : host.session().menuOptions().all()) {
        if (plainLabel(option->menu) == wantedMenu && plainLabel(option->label) == wantedLabel) {
            return *option;
        }
    }
    throw std::logic_error("There is no option \"" + wantedLabel + "\" in the menu \"" +
                           wantedMenu + "\".");
}

host::Control& controlOf(MemoryHost& host, int handle) {
    auto* const control = host.session().controls().find<host::Control>(handle);
    if (control == nullptr) {
        throw std::logic_error("There is no control " + std::to_string(handle) + '.');
    }
    return *control;
}

/// Of this kind; throws where there is none.
template <class T>
T& controlAs(MemoryHost& host, int handle) {
    auto* const wanted = dynamic_cast<T*>(&controlOf(host, handle));
    if (wanted == nullptr) {
        throw std::logic_error("The control " + std::to_string(handle) + " is of another kind.");
    }
    return *wanted;
}

template <class T>
bool isOfKind(MemoryHost& host, int handle) {
    return dynamic_cast<T*>(&controlOf(host, handle)) != nullptr;
}

/// Does act(actions) with a control that the user can reach.
template <class Act>
CorBool operate(CorMemoryHost handle, int control, const Act& act) {
    return done(handle, [&](CorMemoryHost_s& it) {
        host::ControlActions& actions = it.host->session().controlActions();
        requireReachable(controlOf(*it.host, control), actions);
        act(*it.host, actions);
    });
}

/// Entries of menus are found by their label anywhere in the dialog.
int findEntry(MemoryHost& host, int dialog, bool isToggle, const std::string& label) {
    for (const auto& control : host.session().controls().all()) {
        const bool isWanted = isToggle
                                  ? dynamic_cast<const host::MenuToggle*>(control.get()) != nullptr
                                  : dynamic_cast<const host::MenuItem*>(control.get()) != nullptr;
        if (isWanted && control->dialog->handle == dialog &&
            plainLabel(control->label) == plainLabel(label)) {
            return control->handle;
        }
    }
    throw std::logic_error("The dialog has no such entry: " + label);
}

int findControl(MemoryHost& host, int dialog, CorMemoryControl_e kind, const char* text) {
    const MemoryDialog found = host.gui().dialog(dialog);
    const bool isOnly = text == nullptr;
    switch (kind) {
    case CorMemoryControl_Button:
        return found.button(required(text, "text")).handle();
    case CorMemoryControl_Label:
        return found.label(required(text, "text")).handle();
    case CorMemoryControl_GroupBox:
        return found.groupBox(required(text, "text")).handle();
    case CorMemoryControl_TextField:
        return (isOnly ? found.field() : found.field(text)).handle();
    case CorMemoryControl_SpinField:
        return (isOnly ? found.spinField() : found.spinField(text)).handle();
    case CorMemoryControl_Toggle:
        return found.toggle(required(text, "text")).handle();
    case CorMemoryControl_List:
        return (isOnly ? found.list() : found.list(text)).handle();
    case CorMemoryControl_OptionMenu:
        return (isOnly ? found.optionMenu() : found.optionMenu(text)).handle();
    case CorMemoryControl_RadioBox:
        return (isOnly ? found.radioBox() : found.radioBox(text)).handle();
    case CorMemoryControl_MenuItem:
    case CorMemoryControl_MenuToggle:
        return findEntry(host, dialog, kind == CorMemoryControl_MenuToggle, required(text, "text"));
    }
    throw std::invalid_argument("There is no such kind of control.");
}

const std::vector<std::string>& itemsOf(MemoryHost& host, int handle) {
    const host::Control& control = controlOf(host, handle);
    if (const auto* const list = dynamic_cast<const host::List*>(&control)) {
        return list->rows;
    }
    if (const auto* const menu = dynamic_cast<const host::OptionMenu*>(&control)) {
        return menu->items;
    }
    return controlAs<host::RadioBox>(host, handle).items;
}

std::vector<long> chosenOf(MemoryHost& host, int handle) {
    const host::Control& control = controlOf(host, handle);
    if (const auto* const list = dynamic_cast<const host::List*>(&control)) {
        return list->selection;
    }
    if (const auto* const menu = dynamic_cast<const host::OptionMenu*>(&control)) {
        return {menu->chosen()};
    }
    return {controlAs<host::RadioBox>(host, handle).chosen};
}

void pressDialogButton(MemoryHost& host, int dialog, CorMemoryDialogButton_e button) {
    const MemoryDialog found = host.gui().dialog(dialog);
    switch (button) {
    case CorMemoryDialogButton_Ok:
        return found.ok();
    case CorMemoryDialogButton_Apply:
        return found.apply();
    case CorMemoryDialogButton_Cancel:
        return found.cancel();
    case CorMemoryDialogButton_Help:
        return found.help();
    }
    throw std::invalid_argument("There is no such button.");
}

} // namespace

CorBool CorMemoryHostChooseMenuOption(CorMemoryHost host, const char* menu, const char* label) {
    return done(host, [&](CorMemoryHost_s& it) {
        const host::MenuOption& option = optionOf(*it.host, menu, label);
        if (!option.isSensitive) {
            throw std::logic_error("The option \"" + option.label + "\" is dimmed.");
        }
        option.chosen();
    });
}

CorBool CorMemoryHostIsMenuOptionSensitive(CorMemoryHost host, const char* menu,
                                           const char* label) {
    return answer(host, FALSE, [&](CorMemoryHost_s& it) {
        return optionOf(*it.host, menu, label).isSensitive ? TRUE : FALSE;
    });
}

int CorMemoryHostFindDialog(CorMemoryHost host, const char* title) {
    return answer(host, COR_HANDLE_NOT_CREATED, [&](CorMemoryHost_s& it) {
        return it.host->gui().dialog(std::string(required(title, "title"))).handle();
    });
}

int CorMemoryHostFindControl(CorMemoryHost host, int dialog, CorMemoryControl_e kind,
                             const char* text) {
    return answer(host, COR_HANDLE_NOT_CREATED,
                  [&](CorMemoryHost_s& it) { return findControl(*it.host, dialog, kind, text); });
}

CorBool CorMemoryHostPress(CorMemoryHost host, int control) {
    return operate(host, control, [&](MemoryHost& it, host::ControlActions& actions) {
        if (isOfKind<host::MenuItem>(it, control)) {
            actions.trigger(control);
        } else {
            actions.press(controlAs<host::Button>(it, control).handle);
        }
    });
}

CorBool CorMemoryHostSwitch(CorMemoryHost host, int toggle) {
    return operate(host, toggle, [&](MemoryHost& it, host::ControlActions& actions) {
        const bool isOn = isOfKind<host::MenuToggle>(it, toggle)
                              ? controlAs<host::MenuToggle>(it, toggle).isOn
                              : controlAs<host::Toggle>(it, toggle).isOn;
        actions.switchTo(toggle, !isOn);
    });
}

CorBool CorMemoryHostType(CorMemoryHost host, int field, const char* text) {
    return operate(host, field, [&](MemoryHost& it, host::ControlActions& actions) {
        actions.edit(controlAs<host::TextField>(it, field).handle, required(text, "text"));
        actions.commit(field);
    });
}

CorBool CorMemoryHostStep(CorMemoryHost host, int spinField, CorBool up) {
    return operate(host, spinField, [&](MemoryHost& it, host::ControlActions& actions) {
        actions.step(controlAs<host::SpinField>(it, spinField).handle, up != FALSE);
    });
}

CorBool CorMemoryHostSelect(CorMemoryHost host, int list, const long* positions, long count) {
    return operate(host, list, [&](MemoryHost& it, host::ControlActions& actions) {
        std::vector<long> wanted;
        if (count > 0) {
            wanted.assign(required(positions, "positions"), positions + count);
        }
        for (const long position : wanted) {
            numbered(controlAs<host::List>(it, list).rows, position);
        }
        actions.select(list, wanted);
    });
}

CorBool CorMemoryHostChoose(CorMemoryHost host, int control, long position) {
    return operate(host, control, [&](MemoryHost& it, host::ControlActions& actions) {
        numbered(itemsOf(it, control), position);
        actions.choose(control, position);
    });
}

CorBool CorMemoryHostPressDialogButton(CorMemoryHost host, int dialog,
                                       CorMemoryDialogButton_e button) {
    return done(host, [&](CorMemoryHost_s& it) { pressDialogButton(*it.host, dialog, button); });
}

CorBool CorMemoryHostIsUp(CorMemoryHost host, int dialog) {
    return answer(host, FALSE, [&](CorMemoryHost_s& it) {
        return controlAs<host::Dialog>(*it.host, dialog).isUp ? TRUE : FALSE;
    });
}

CorBool CorMemoryHostIsSensitive(CorMemoryHost host, int control) {
    return answer(host, FALSE, [&](CorMemoryHost_s& it) {
        return host::isDimmed(controlOf(*it.host, control)) ? FALSE : TRUE;
    });
}

const char* CorMemoryHostGetText(CorMemoryHost host, int control) {
    return text(host, [&](CorMemoryHost_s& it) {
        return isOfKind<host::TextField>(*it.host, control)
                   ? controlAs<host::TextField>(*it.host, control).shown
                   : controlOf(*it.host, control).label;
    });
}

CorBool CorMemoryHostIsOn(CorMemoryHost host, int toggle) {
    return answer(host, FALSE, [&](CorMemoryHost_s& it) {
        const bool isOn = isOfKind<host::MenuToggle>(*it.host, toggle)
                              ? controlAs<host::MenuToggle>(*it.host, toggle).isOn
                              : controlAs<host::Toggle>(*it.host, toggle).isOn;
        return isOn ? TRUE : FALSE;
    });
}

long CorMemoryHostGetItemCount(CorMemoryHost host, int control) {
    return answer(host, 0L, [&](CorMemoryHost_s& it) {
        return static_cast<long>(itemsOf(*it.host, control).size());
    });
}

const char* CorMemoryHostGetItem(CorMemoryHost host, int control, long position) {
    return text(
        host, [&](CorMemoryHost_s& it) { return numbered(itemsOf(*it.host, control), position); });
}

CorBool CorMemoryHostIsChosen(CorMemoryHost host, int control, long position) {
    return answer(host, FALSE, [&](CorMemoryHost_s& it) {
        const std::vector<long> chosen = chosenOf(*it.host, control);
        return std::find(chosen.begin(), chosen.end(), position) != chosen.end() ? TRUE : FALSE;
    });
}
