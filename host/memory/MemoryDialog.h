// A dialog of an add-on as a user of the tests sees and uses it.
#pragma once

#include "host/memory/MemoryControls.h"

#include <string>
#include <vector>

namespace corvane::memory {

/// Controls are found by their label, by the label beside them, or by handle; without an argument
/// the only one of its kind is meant. std::logic_error when there is none, or more than one.
class MemoryDialog : public MemoryControl<host::Dialog> {
public:
    MemoryDialog(const host::Dialog& dialog, const std::vector<const host::Control*>& all,
                 host::ControlActions& actions)
        : MemoryControl(dialog, actions), m_all(&all), m_actions(&actions) {}

    bool isUp() const { return control().isUp; }

    MemoryButton button(const std::string& label) const;
    MemoryLabel label(const std::string& text) const;
    MemoryLabel label(int handle) const;
    MemoryGroupBox groupBox(const std::string& label) const;
    MemoryToggle toggle(const std::string& label) const;
    MemoryField field() const;
    MemoryField field(const std::string& labelBeside) const;
    MemoryField field(int handle) const;
    MemorySpinField spinField() const;
    MemorySpinField spinField(const std::string& labelBeside) const;
    MemoryList list() const;
    MemoryList list(const std::string& labelBeside) const;
    MemoryList list(int handle) const;
    MemoryOptionMenu optionMenu() const;
    MemoryOptionMenu optionMenu(const std::string& labelBeside) const;
    MemoryOptionMenu optionMenu(int handle) const;
    MemoryRadioBox radioBox() const;
    /// The one with this item.
    MemoryRadioBox radioBox(const std::string& item) const;
    MemoryRadioBox radioBox(int handle) const;
    /// A menu of the menu bar.
    MemoryMenu menu(const std::string& label) const;
    /// Titles of the menus of the menu bar, as they were given; none without one.
    std::vector<std::string> menus() const;

    /// How many controls of all kinds it has, itself left out.
    std::size_t controlCount() const;

    void ok() const;
    void apply() const;
    void cancel() const; ///< of a modal dialog; close() of another
    void close() const { cancel(); }
    void help() const;
    void closeByWindow() const { cancel(); }
    void pressEscape() const { cancel(); }
    /// Outside of text fields; see MemoryField::pressReturn.
    void pressReturn() const;

private:
    template <class T>
    std::vector<const T*> those() const;
    template <class T>
    const T& only(const char* kind) const;
    template <class T>
    const T& labelled(const char* kind, const std::string& label) const;
    template <class T>
    const T& beside(const char* kind, const std::string& label) const;
    template <class T>
    const T& byHandle(const char* kind, int handle) const;

    const std::vector<const host::Control*>* m_all;
    host::ControlActions* m_actions;
};

} // namespace corvane::memory
