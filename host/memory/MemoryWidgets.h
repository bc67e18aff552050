// A toolkit without windows: tests use its dialogs as a user would.
#pragma once

#include "host/core/controls/Widgets.h"
#include "host/memory/MemoryDialog.h"

#include <cstddef>
#include <string>
#include <vector>

namespace corvane::memory {

///     host.gui().dialog("Kites").field("Name:").type("red");
///     host.gui().dialog("Kites").button("Add").click();
class MemoryWidgets : public host::Widgets {
public:
    /// By title; std::logic_error when there is none.
    MemoryDialog dialog(const std::string& title) const;
    MemoryDialog dialog(int handle) const;
    bool hasDialog(const std::string& title) const;
    /// Titles of the dialogs that are shown, in the order of their making.
    std::vector<std::string> dialogsUp() const;

    /// How often the toolkit was asked to show such a change of a control.
    std::size_t changes(int handle, host::ControlChange change) const;
    /// "show Kites", "raise Kites", "hide Kites", in order.
    const std::vector<std::string>& windowCalls() const { return m_windowCalls; }
    bool isClosed() const { return m_isClosed; }

    void attach(host::ControlActions& actions) override { m_actions = &actions; }
    void add(const host::Dialog& dialog) override { m_all.push_back(&dialog); }
    void add(const host::Button& button) override { m_all.push_back(&button); }
    void add(const host::Label& label) override { m_all.push_back(&label); }
    void add(const host::GroupBox& box) override { m_all.push_back(&box); }
    void add(const host::TextField& field) override { m_all.push_back(&field); }
    void add(const host::SpinField& field) override { m_all.push_back(&field); }
    void add(const host::Toggle& toggle) override { m_all.push_back(&toggle); }
    void add(const host::List& list) override { m_all.push_back(&list); }
    void add(const host::OptionMenu& menu) override { m_all.push_back(&menu); }
    void add(const host::RadioBox& box) override { m_all.push_back(&box); }
    void add(const host::MenuBar& bar) override { m_all.push_back(&bar); }
    void add(const host::Menu& menu) override { m_all.push_back(&menu); }
    void add(const host::MenuItem& item) override { m_all.push_back(&item); }
    void add(const host::MenuToggle& toggle) override { m_all.push_back(&toggle); }
    void addSeparator(const host::Menu&) override {}
    void changed(const host::Control& control, host::ControlChange change) override;
    void show(const host::Dialog& dialog) override;
    void raise(const host::Dialog& dialog) override;
    void hide(const host::Dialog& dialog) override;
    void close() override;

private:
    struct Change {
        int handle;
        host::ControlChange change;
    };
    const host::Dialog* find(const std::string& title) const;

    host::ControlActions* m_actions = nullptr;
    std::vector<const host::Control*> m_all;
    std::vector<Change> m_changes;
    std::vector<std::string> m_windowCalls;
    bool m_isClosed = false;
};

} // namespace corvane::memory
