// The options that add-ons put into the menus of the main window.
#include "host/core/controls/MenuOptions.h"

#include <utility>

namespace corvane::host {

namespace {

std::string withoutMnemonic(std::string title) {
    std::erase(title, '&');
    return title;
}

} // namespace

MenuOptions::~MenuOptions() {
    close();
}

void MenuOptions::close() {
    if (MainMenu* const menu = std::exchange(m_menu, nullptr)) {
        menu->close();
    }
}

bool MenuOptions::add(const std::string& menu, std::string label, std::function<void()> callback,
                      const std::string& owner) {
    if (m_menu == nullptr) {
        return false;
    }
    auto option = std::make_unique<MenuOption>();
    option->menu = withoutMnemonic(menu);
    option->label = std::move(label);
    option->chosen = [this, &added = *option, callback = std::move(callback), owner] {
        if (added.isSensitive) {
            m_caller(ofOwner("the menu option \"" + added.label + '"', owner), callback);
        }
    };
    m_options.push_back(std::move(option));
    m_menu->add(*m_options.back());
    return true;
}

bool MenuOptions::setSensitivity(const std::string& menu, const std::string& label,
                                 bool isSensitive) {
    bool isFound = false;
    for (const auto& option : m_options) {
        if (m_menu == nullptr || option->menu != withoutMnemonic(menu) || option->label != label) {
            continue;
        }
        isFound = true;
        option->isSensitive = isSensitive;
        m_menu->changed(*option);
    }
    return isFound;
}

} // namespace corvane::host
