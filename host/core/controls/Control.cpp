// What is known of the dialogs and controls of add-ons.
#include "host/core/controls/Control.h"

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

} // namespace

bool isDimmed(const Control& control) {
    for (const Control* each = &control; each != nullptr; each = container(*each)) {
        if (!each->isSensitive) {
            return true;
        }
    }
    return false;
}

} // namespace corvane::host
