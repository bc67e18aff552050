// A host with two dialogs whose callbacks write down what they were told.
#pragma once

#include "hostapi/CorHost.h"
#include "tests/support/HostTest.h"

#include <functional>
#include <string>
#include <vector>

namespace corvane::test {

class GuiTest : public EmptyHostTest {
protected:
    GuiTest();

    /// Which callbacks came, with what they were given: "press", "text abc", "list 2".
    static std::vector<std::string> told;
    /// Done by the callback of this name, after it was written down.
    static void on(const std::string& callback, std::function<void()> work);
    /// What the callbacks of texts answer; 1 at first.
    static long textAnswer;
    static std::vector<std::string> take(); ///< told, which is empty afterwards

    static void init() { note("init"); }
    static void close() { note("close"); }
    static void ok() { note("ok"); }
    static void apply() { note("apply"); }
    static void cancel() { note("cancel"); }
    static void help() { note("help"); }
    static void press() { note("press"); }
    static void up() { note("up"); }
    static void down() { note("down"); }
    static void item() { note("item"); }
    static long text(const char* text);
    static void list(const long* positions) { note("list " + std::to_string(*positions)); }
    static void option(const long* position) { note("option " + std::to_string(*position)); }
    static void radio(const long* position) { note("radio " + std::to_string(*position)); }
    static void toggle(const long* isOn) { note("toggle " + std::to_string(*isOn)); }
    static void menuToggle(const long* isOn) { note("menuToggle " + std::to_string(*isOn)); }

    /// A modeless dialog "Kites" and a modal one "Knots", both hidden, without controls.
    int kites;
    int knots;
    MemoryDialog kitesDialog() { return host.gui().dialog("Kites"); }
    MemoryDialog knotsDialog() { return host.gui().dialog("Knots"); }
    /// Launched; what its init was told is forgotten.
    MemoryDialog launchKites();
    MemoryDialog launchKnots();
    int addField(int dialog) { return CorGUITextFieldAdd(dialog, 0, 0, 900, 145, &text); }

private:
    static void note(const std::string& what);
};

} // namespace corvane::test
