// What is known of the dialogs and controls of add-ons.
#include "host/core/controls/Control.h"

#include "host/core/addons/AddOnCaller.h"

namespace corvane::host {

namespace {

const Control* container(const Control& control) {
    if (const auto* entry = dynamic_cast<const MenuEntry*>(&control)) {
        return entry->menu;
    }
    if (const auto* menu = dynamic_cast<const Menu*>(&control)) {
        return menu->parent;
    }
    return control.dialog != &control ? control.dialog : nullptr;
}

std::string inQuotes(const std::string& text) {
    return '"' + text + '"';
}

} // namespace

bool isDimmed(const Control& control) {
    for (const Control* each = &control; each != nullptr; each = container(*each)) {
        if (!each->isSensitive) {
            return true;
        }
    }
    return false;
}

std::string nameInTrace(const Control& control) {
    const Dialog& dialog = *control.dialog;
    std::string name = ofOwner("the dialog " + inQuotes(dialog.label), dialog.owner);
    if (&control == &dialog) {
        return name;
    }
    const bool isNameless = control.label.empty();
    return (isNameless ? "control " + std::to_string(control.handle) : inQuotes(control.label)) +
           " of " + name;
}

} // namespace corvane::host
