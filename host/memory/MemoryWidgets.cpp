// A toolkit without windows: tests use its dialogs as a user would.
#include "host/memory/MemoryWidgets.h"

#include <algorithm>
#include <stdexcept>

namespace corvane::memory {

const host::Dialog* MemoryWidgets::find(const std::string& title) const {
    for (const host::Control* each : m_all) {
        const auto* dialog = dynamic_cast<const host::Dialog*>(each);
        if (dialog != nullptr && dialog->label == title) {
            return dialog;
        }
    }
    return nullptr;
}

bool MemoryWidgets::hasDialog(const std::string& title) const {
    return find(title) != nullptr;
}

MemoryDialog MemoryWidgets::dialog(const std::string& title) const {
    const host::Dialog* const found = find(title);
    if (found == nullptr) {
        throw std::logic_error("There is no dialog \"" + title + "\".");
    }
    return {*found, m_all, *m_actions};
}

MemoryDialog MemoryWidgets::dialog(int handle) const {
    for (const host::Control* each : m_all) {
        const auto* dialog = dynamic_cast<const host::Dialog*>(each);
        if (dialog != nullptr && dialog->handle == handle) {
            return {*dialog, m_all, *m_actions};
        }
    }
    throw std::logic_error("There is no dialog " + std::to_string(handle) + '.');
}

std::vector<std::string> MemoryWidgets::dialogsUp() const {
    std::vector<std::string> titles;
    for (const host::Control* each : m_all) {
        const auto* dialog = dynamic_cast<const host::Dialog*>(each);
        if (dialog != nullptr && dialog->isUp) {
            titles.push_back(dialog->label);
        }
    }
    return titles;
}

std::size_t MemoryWidgets::changes(int handle, host::ControlChange change) const {
    return static_cast<std::size_t>(
        std::count_if(m_changes.begin(), m_changes.end(), [&](const Change& each) {
            return each.handle == handle && each.change == change;
        }));
}

void MemoryWidgets::changed(const host::Control& control, host::ControlChange change) {
    m_changes.push_back({control.handle, change});
}

void MemoryWidgets::show(const host::Dialog& dialog) {
    m_windowCalls.push_back("show " + dialog.label);
}

void MemoryWidgets::raise(const host::Dialog& dialog) {
    m_windowCalls.push_back("raise " + dialog.label);
}

void MemoryWidgets::hide(const host::Dialog& dialog) {
    m_windowCalls.push_back("hide " + dialog.label);
}

void MemoryWidgets::close() {
    m_isClosed = true;
    m_all.clear();
}

} // namespace corvane::memory
