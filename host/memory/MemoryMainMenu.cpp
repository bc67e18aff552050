// Menus of a main window without a window: tests choose from them as a user would.
#include "host/memory/MemoryMainMenu.h"

#include <algorithm>
#include <stdexcept>

namespace corvane::memory {

std::vector<std::string> MemoryMainMenu::menus() const {
    std::vector<std::string> titles;
    for (const host::MenuOption* option : m_options) {
        if (std::find(titles.begin(), titles.end(), option->menu) == titles.end()) {
            titles.push_back(option->menu);
        }
    }
    return titles;
}

std::vector<std::string> MemoryMainMenu::options(const std::string& menu) const {
    std::vector<std::string> labels;
    for (const host::MenuOption* option : m_options) {
        if (option->menu == menu) {
            labels.push_back(option->label);
        }
    }
    return labels;
}

const host::MenuOption& MemoryMainMenu::find(const std::string& menu,
                                             const std::string& label) const {
    for (const host::MenuOption* option : m_options) {
        if (option->menu == menu && option->label == label) {
            return *option;
        }
    }
    throw std::logic_error("There is no option \"" + label + "\" in the menu \"" + menu + "\".");
}

bool MemoryMainMenu::isSensitive(const std::string& menu, const std::string& label) const {
    return find(menu, label).isSensitive;
}

void MemoryMainMenu::choose(const std::string& menu, const std::string& label) const {
    const host::MenuOption& option = find(menu, label);
    if (!option.isSensitive) {
        throw std::logic_error("The option \"" + label + "\" is dimmed.");
    }
    option.chosen();
}

void MemoryMainMenu::close() {
    m_isClosed = true;
    m_options.clear();
}

} // namespace corvane::memory
