// A dialog of an add-on as a user of the tests sees and uses it.
#include "host/memory/MemoryDialog.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <stdexcept>

namespace corvane::memory {

namespace {

/// People read along lines: something in the same line is nearer than something below.
int distance(const host::Box& label, const host::Box& control) {
    const bool isBefore = control.x < label.x - 100 || control.y < label.y - 100;
    return isBefore ? std::numeric_limits<int>::max()
                    : std::abs(control.x - label.x) + 10 * std::abs(control.y - label.y);
}

} // namespace

template <class T>
std::vector<const T*> MemoryDialog::those() const {
    std::vector<const T*> found;
    for (const host::Control* each : *m_all) {
        const auto* wanted = dynamic_cast<const T*>(each);
        if (wanted != nullptr && wanted->dialog == &control()) {
            found.push_back(wanted);
        }
    }
    return found;
}

template <class T>
const T& MemoryDialog::only(const char* kind) const {
    const std::vector<const T*> found = those<T>();
    if (found.size() != 1) {
        throw std::logic_error("The dialog \"" + control().label + "\" has " +
                               std::to_string(found.size()) + " of: " + kind);
    }
    return *found.front();
}

template <class T>
const T& MemoryDialog::labelled(const char* kind, const std::string& label) const {
    for (const T* each : those<T>()) {
        if (plainLabel(each->label) == plainLabel(label)) {
            return *each;
        }
    }
    throw std::logic_error("The dialog \"" + control().label + "\" has no " + kind + " \"" + label +
                           "\".");
}

template <class T>
const T& MemoryDialog::beside(const char* kind, const std::string& label) const {
    const host::Box from = labelled<host::Label>("label", label).box;
    const std::vector<const T*> found = those<T>();
    const auto nearest = std::min_element(found.begin(), found.end(), [&](const T* a, const T* b) {
        return distance(from, a->box) < distance(from, b->box);
    });
    if (nearest == found.end()) {
        throw std::logic_error("The dialog \"" + control().label + "\" has no " + kind + '.');
    }
    return **nearest;
}

template <class T>
const T& MemoryDialog::byHandle(const char* kind, int handle) const {
    for (const T* each : those<T>()) {
        if (each->handle == handle) {
            return *each;
        }
    }
    throw std::logic_error("The dialog \"" + control().label + "\" has no " + kind + ' ' +
                           std::to_string(handle) + '.');
}

MemoryButton MemoryDialog::button(const std::string& label) const {
    return {labelled<host::Button>("button", label), *m_actions};
}

MemoryLabel MemoryDialog::label(const std::string& text) const {
    return {labelled<host::Label>("label", text), *m_actions};
}

MemoryLabel MemoryDialog::label(int handle) const {
    return {byHandle<host::Label>("label", handle), *m_actions};
}

MemoryGroupBox MemoryDialog::groupBox(const std::string& label) const {
    return {labelled<host::GroupBox>("group box", label), *m_actions};
}

MemoryToggle MemoryDialog::toggle(const std::string& label) const {
    return {labelled<host::Toggle>("toggle", label), *m_actions};
}

MemoryField MemoryDialog::field() const {
    return {only<host::TextField>("text field"), *m_actions};
}

MemoryField MemoryDialog::field(const std::string& labelBeside) const {
    return {beside<host::TextField>("text field", labelBeside), *m_actions};
}

MemoryField MemoryDialog::field(int handle) const {
    return {byHandle<host::TextField>("text field", handle), *m_actions};
}

MemorySpinField MemoryDialog::spinField() const {
    return {only<host::SpinField>("spin field"), *m_actions};
}

MemorySpinField MemoryDialog::spinField(const std::string& labelBeside) const {
    return {beside<host::SpinField>("spin field", labelBeside), *m_actions};
}

MemoryList MemoryDialog::list() const {
    return {only<host::List>("list"), *m_actions};
}

MemoryList MemoryDialog::list(const std::string& labelBeside) const {
    return {beside<host::List>("list", labelBeside), *m_actions};
}

MemoryList MemoryDialog::list(int handle) const {
    return {byHandle<host::List>("list", handle), *m_actions};
}

MemoryOptionMenu MemoryDialog::optionMenu() const {
    return {only<host::OptionMenu>("option menu"), *m_actions};
}

MemoryOptionMenu MemoryDialog::optionMenu(const std::string& labelBeside) const {
    return {beside<host::OptionMenu>("option menu", labelBeside), *m_actions};
}

MemoryOptionMenu MemoryDialog::optionMenu(int handle) const {
    return {byHandle<host::OptionMenu>("option menu", handle), *m_actions};
}

MemoryRadioBox MemoryDialog::radioBox() const {
    return {only<host::RadioBox>("radio box"), *m_actions};
}

MemoryRadioBox MemoryDialog::radioBox(const std::string& item) const {
    for (const host::RadioBox* box : those<host::RadioBox>()) {
        for (const std::string& label : box->items) {
            if (plainLabel(label) == plainLabel(item)) {
                return {*box, *m_actions};
            }
        }
    }
    throw std::logic_error("The dialog \"" + control().label + "\" has no radio box with \"" +
                           item + "\".");
}

MemoryRadioBox MemoryDialog::radioBox(int handle) const {
    return {byHandle<host::RadioBox>("radio box", handle), *m_actions};
}

MemoryMenu MemoryDialog::menu(const std::string& label) const {
    for (const host::Control* entry : only<host::MenuBar>("menu bar").entries) {
        const auto* menu = dynamic_cast<const host::Menu*>(entry);
        if (menu != nullptr && plainLabel(menu->label) == plainLabel(label)) {
            return {*menu, *m_actions};
        }
    }
    throw std::logic_error("The dialog \"" + control().label + "\" has no menu \"" + label + "\".");
}

std::vector<std::string> MemoryDialog::menus() const {
    std::vector<std::string> titles;
    for (const host::MenuBar* bar : those<host::MenuBar>()) {
        for (const host::Control* entry : bar->entries) {
            titles.push_back(entry->label);
        }
    }
    return titles;
}

std::size_t MemoryDialog::controlCount() const {
    return those<host::Control>().size() - 1;
}

void MemoryDialog::ok() const {
    if (!control().isModal) {
        throw std::logic_error("The dialog \"" + control().label + "\" has no OK.");
    }
    act().ok(handle());
}

void MemoryDialog::apply() const {
    if (!control().onApply) {
        throw std::logic_error("The dialog \"" + control().label + "\" has no Apply.");
    }
    act().apply(handle());
}

void MemoryDialog::cancel() const {
    act().dismiss(handle());
}

void MemoryDialog::help() const {
    if (!control().onHelp) {
        throw std::logic_error("The dialog \"" + control().label + "\" has no Help.");
    }
    act().help(handle());
}

void MemoryDialog::pressReturn() const {
    act().ok(handle());
}

} // namespace corvane::memory
