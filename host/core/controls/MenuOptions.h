// The options that add-ons put into the menus of the main window.
#pragma once

#include "host/core/addons/AddOnCaller.h"
#include "host/core/controls/MainMenu.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace corvane::host {

class MenuOptions {
public:
    /// menu may be null: there is no main window. caller calls the add-ons.
    explicit MenuOptions(MainMenu* menu, AddOnCaller caller = callPlainly)
        : m_menu(menu), m_caller(std::move(caller)) {}
    ~MenuOptions();
    MenuOptions(const MenuOptions&) = delete;
    MenuOptions& operator=(const MenuOptions&) = delete;

    /// owner names the add-on for the trace. False without a main window.
    bool add(const std::string& menu, std::string label, std::function<void()> callback,
             const std::string& owner = {});
    /// menu is compared without '&', label exactly. False when there is no such option.
    bool setSensitivity(const std::string& menu, const std::string& label, bool isSensitive);
    const std::vector<std::unique_ptr<MenuOption>>& all() const { return m_options; }

    void close(); ///< takes the options away, for good

private:
    MainMenu* m_menu;
    AddOnCaller m_caller;
    std::vector<std::unique_ptr<MenuOption>> m_options;
};

} // namespace corvane::host
