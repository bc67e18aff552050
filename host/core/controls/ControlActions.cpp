// What users do with the dialogs and controls of add-ons.
#include "host/core/controls/ControlActions.h"

#include "host/core/controls/Controls.h"

#include <utility>

namespace corvane::host {

bool ControlActions::isReachable(const Control& control) const {
    return control.dialog->isUp && !m_controls.isBlocked(*control.dialog) && !isDimmed(control);
}

template <class T>
T* ControlActions::reachable(int handle) const {
    T* const control = m_controls.find<T>(handle);
    return control != nullptr && isReachable(*control) ? control : nullptr;
}

void ControlActions::tell(const Control& control, const OnPress& callback) {
    if (callback) {
        m_controls.callAddOn(control, callback);
    }
}

void ControlActions::tellPosition(const Control& control, const OnPosition& callback,
                                  long position) {
    if (callback) {
        m_controls.callAddOn(control, [&] { callback(position); });
    }
}

bool ControlActions::commit(TextField& field) {
    if (!field.isPending()) {
        return true;
    }
    // First, since an error box of the add-on takes the focus, which commits again.
    field.committed = field.shown;
    if (!field.onText) {
        return true;
    }
    const std::string text = field.committed;
    bool isAccepted = false;
    m_controls.callAddOn(field, [&] { isAccepted = field.onText(text); });
    return isAccepted;
}

bool ControlActions::flush(const Dialog& dialog, const Control* except) {
    // By index: callbacks may add controls.
    for (std::size_t index = 0; index < m_controls.all().size(); ++index) {
        auto* const field = dynamic_cast<TextField*>(m_controls.all()[index].get());
        if (field != nullptr && field->dialog == &dialog && field != except && !commit(*field)) {
            return false;
        }
    }
    return true;
}

/// The callbacks of fields may put the control itself out of reach.
bool ControlActions::prepare(const Control& control) {
    return flush(*control.dialog, nullptr) && isReachable(control);
}

void ControlActions::press(int handle) {
    if (const auto* button = reachable<Button>(handle); button != nullptr && prepare(*button)) {
        tell(*button, button->onPress);
    }
}

void ControlActions::trigger(int handle) {
    if (const auto* item = reachable<MenuItem>(handle); item != nullptr && prepare(*item)) {
        tell(*item, item->onPress);
    }
}

template <class T>
void ControlActions::switchOne(T& toggle, bool isOn) {
    if (!prepare(toggle)) {
        m_controls.show(toggle, ControlChange::State);
        return;
    }
    m_controls.setState(toggle, isOn);
    if (toggle.onState) {
        m_controls.callAddOn(toggle, [&] { toggle.onState(isOn); });
    }
}

void ControlActions::switchTo(int handle, bool isOn) {
    if (auto* toggle = reachable<Toggle>(handle)) {
        switchOne(*toggle, isOn);
    } else if (auto* entry = reachable<MenuToggle>(handle)) {
        switchOne(*entry, isOn);
    }
}

void ControlActions::select(int handle, std::vector<long> positions) {
    List* const list = reachable<List>(handle);
    if (list == nullptr) {
        return;
    }
    if (!prepare(*list)) {
        m_controls.show(*list, ControlChange::Selection);
        return;
    }
    const std::vector<long> before = list->selection;
    m_controls.select(*list, std::move(positions));
    if (list->selection != before) {
        tellPosition(*list, list->onPosition,
                     list->selection.empty() ? 0 : list->selection.front());
    }
}

template <class T>
void ControlActions::chooseIn(T& control, long position) {
    const bool exists = position >= 1 && position <= static_cast<long>(control.items.size());
    if (!exists || !prepare(control)) {
        m_controls.show(control, ControlChange::Choice);
        return;
    }
    m_controls.choose(control, position);
    tellPosition(control, control.onPosition, position);
}

void ControlActions::choose(int handle, long position) {
    if (auto* menu = reachable<OptionMenu>(handle)) {
        chooseIn(*menu, position);
    } else if (auto* box = reachable<RadioBox>(handle)) {
        chooseIn(*box, position);
    }
}

void ControlActions::step(int handle, bool isUp) {
    if (const auto* field = reachable<SpinField>(handle); field != nullptr && prepare(*field)) {
        tell(*field, isUp ? field->onUp : field->onDown);
    }
}

void ControlActions::edit(int handle, const std::string& text) {
    TextField* const field = reachable<TextField>(handle);
    if (field == nullptr) {
        return;
    }
    m_controls.edit(*field, text);
    flush(*field->dialog, field);
}

void ControlActions::commit(int handle) {
    if (auto* field = reachable<TextField>(handle)) {
        commit(*field);
    }
}

void ControlActions::enter(int handle) {
    TextField* const field = reachable<TextField>(handle);
    if (field == nullptr) {
        return;
    }
    if (field->isPending()) {
        commit(*field);
    } else {
        ok(field->dialog->handle);
    }
}

void ControlActions::ok(int handle) {
    const auto* dialog = reachable<Dialog>(handle);
    if (dialog != nullptr && dialog->isModal && prepare(*dialog)) {
        tell(*dialog, dialog->onOk);
    }
}

void ControlActions::apply(int handle) {
    if (const auto* dialog = reachable<Dialog>(handle); dialog != nullptr && prepare(*dialog)) {
        tell(*dialog, dialog->onApply);
    }
}

void ControlActions::help(int handle) {
    if (const auto* dialog = reachable<Dialog>(handle); dialog != nullptr && prepare(*dialog)) {
        tell(*dialog, dialog->onHelp);
    }
}

void ControlActions::dismiss(int handle) {
    if (const auto* dialog = reachable<Dialog>(handle); dialog != nullptr && prepare(*dialog)) {
        tell(*dialog, dialog->onDismiss);
    }
}

} // namespace corvane::host
