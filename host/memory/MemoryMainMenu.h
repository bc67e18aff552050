// Menus of a main window without a window: tests choose from them as a user would.
#pragma once

#include "host/core/controls/MainMenu.h"

#include <string>
#include <vector>

namespace corvane::memory {

class MemoryMainMenu : public host::MainMenu {
public:
    /// Titles without '&', in the order of their making.
    std::vector<std::string> menus() const;
    /// Labels as they were given.
    std::vector<std::string> options(const std::string& menu) const;
    /// std::logic_error when there is no such option.
    bool isSensitive(const std::string& menu, const std::string& label) const;
    /// std::logic_error when there is no such option, or when it is dimmed.
    void choose(const std::string& menu, const std::string& label) const;
    /// How often the window was asked to show an option's sensitivity.
    int changes() const { return m_changes; }
    bool isClosed() const { return m_isClosed; }

    void add(const host::MenuOption& option) override { m_options.push_back(&option); }
    void changed(const host::MenuOption&) override { ++m_changes; }
    void close() override;

private:
    const host::MenuOption& find(const std::string& menu, const std::string& label) const;

    std::vector<const host::MenuOption*> m_options;
    int m_changes = 0;
    bool m_isClosed = false;
};

} // namespace corvane::memory
