// The controls of add-ons as a user of the tests sees and uses them.
#include "host/memory/MemoryControls.h"

#include <algorithm>
#include <cctype>
#include <stdexcept>
#include <utility>

namespace corvane::memory {

namespace {

std::string nameOf(const host::Control& control) {
    return '"' +
           (control.label.empty() ? "control " + std::to_string(control.handle)
                                  : plainLabel(control.label)) +
           '"';
}

/// From 1.
long positionOf(const std::vector<std::string>& items, const std::string& text) {
    const auto found = std::find_if(items.begin(), items.end(), [&](const std::string& item) {
        return plainLabel(item) == plainLabel(text);
    });
    if (found == items.end()) {
        throw std::logic_error("There is no item \"" + text + "\".");
    }
    return found - items.begin() + 1;
}

void requirePosition(const std::vector<std::string>& items, long position) {
    if (position < 1 || position > static_cast<long>(items.size())) {
        throw std::logic_error("There is no item " + std::to_string(position) + '.');
    }
}

template <class T>
const T& entryOf(const host::Menu& menu, const std::string& label) {
    for (const host::Control* entry : menu.entries) {
        const auto* found = dynamic_cast<const T*>(entry);
        if (found != nullptr && plainLabel(found->label) == plainLabel(label)) {
            return *found;
        }
    }
    throw std::logic_error("The menu " + nameOf(menu) + " has no such entry \"" + label + "\".");
}

} // namespace

std::string plainLabel(const std::string& label) {
    std::string plain;
    for (const char letter : label) {
        const bool isBlank = std::isspace(static_cast<unsigned char>(letter)) != 0;
        const bool isPadding = isBlank && (plain.empty() || plain.back() == ' ');
        if (letter != '&' && !isPadding) {
            plain += isBlank ? ' ' : letter;
        }
    }
    if (!plain.empty() && plain.back() == ' ') {
        plain.pop_back();
    }
    return plain;
}

void requireReachable(const host::Control& control, const host::ControlActions& actions) {
    if (!control.dialog->isUp) {
        throw std::logic_error("The dialog " + nameOf(*control.dialog) + " is not up.");
    }
    if (host::isDimmed(control)) {
        throw std::logic_error(nameOf(control) + " is dimmed.");
    }
    if (!actions.isReachable(control)) {
        throw std::logic_error("The dialog " + nameOf(*control.dialog) + " is behind a modal one.");
    }
}

void MemoryList::select(std::vector<long> positions) const {
    for (const long position : positions) {
        requirePosition(rows(), position);
    }
    act().select(handle(), std::move(positions));
}

std::string MemoryOptionMenu::chosenText() const {
    return chosen() == 0 ? "" : items()[static_cast<std::size_t>(chosen() - 1)];
}

void MemoryOptionMenu::choose(long position) const {
    requirePosition(items(), position);
    act().choose(handle(), position);
}

void MemoryOptionMenu::choose(const std::string& item) const {
    choose(positionOf(items(), item));
}

void MemoryRadioBox::choose(long position) const {
    requirePosition(items(), position);
    act().choose(handle(), position);
}

void MemoryRadioBox::choose(const std::string& label) const {
    choose(positionOf(items(), label));
}

std::vector<std::string> MemoryMenu::entries() const {
    std::vector<std::string> labels;
    for (const host::Control* entry : control().entries) {
        labels.push_back(entry != nullptr ? entry->label : "-");
    }
    return labels;
}

MemoryMenuItem MemoryMenu::item(const std::string& label) const {
    return {entryOf<host::MenuItem>(control(), label), *m_actions};
}

MemoryMenuToggle MemoryMenu::toggle(const std::string& label) const {
    return {entryOf<host::MenuToggle>(control(), label), *m_actions};
}

MemoryMenu MemoryMenu::menu(const std::string& label) const {
    return {entryOf<host::Menu>(control(), label), *m_actions};
}

} // namespace corvane::memory
