// The menus of the main window, as far as add-ons have a share in them.
#pragma once

#include <functional>
#include <string>

namespace corvane::host {

/// What an add-on put into a menu.
struct MenuOption {
    std::string menu;  ///< title of a top-level menu, without '&'
    std::string label; ///< '&' marks the mnemonic
    bool isSensitive = true;
    std::function<void()> chosen; ///< to be called when the user chooses it; does not throw
};

/// Options live, at the same address, until close().
class MainMenu {
public:
    virtual ~MainMenu() = default;
    /// Makes the menu where there is none of its title.
    virtual void add(const MenuOption& option) = 0;
    /// isSensitive has changed.
    virtual void changed(const MenuOption& option) = 0;
    /// Takes the options away, for good.
    virtual void close() = 0;
};

} // namespace corvane::host
