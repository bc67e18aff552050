// The options that add-ons put into the menus of the main window.
#pragma once

#include "host/core/addons/AddOnCaller.h"
#include "host/core/controls/MainMenu.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace corvane::host {

class MenuOptions {
public:
    explicit MenuOptions(MainMenu* menu) : m_menu(menu) {} ///< null: there is no main window
    ~MenuOptions();
    MenuOptions(const MenuOptions&) = delete;
    MenuOptions& operator=(const MenuOptions&) = delete;

    /// owner names the add-on for the trace. False without a main window.
    bool add(const std::string& menu, std::string label, std::function<void()> callback,
             const std::string& owner = {});
    /// menu is compared without '&', label exactly. False when there is no such option.
    bool setSensitivity(const std::string& menu, const std::string& label, bool isSensitive);
    const std::vector<std::unique_ptr<MenuOption>>& all() const { return m_options; }

    /// Calls an add-on; the application puts its exception wall here.
    AddOnCaller caller;

    void close(); ///< takes the options away, for good

private:
    MainMenu* m_menu;
    std::vector<std::unique_ptr<MenuOption>> m_options;
};

} // namespace corvane::host
