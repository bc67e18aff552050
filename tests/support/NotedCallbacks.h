// Callbacks of controls that write down what they were given.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace corvane::test {

/// For fixtures to derive from: pass &press and so on to the operations that make controls. All of
/// it is static, since the callbacks of the contract carry no data; making one forgets the former.
class NotedCallbacks {
protected:
    NotedCallbacks();

    /// Which callbacks came since the last time, with what they were given: "press", "text abc",
    /// "list 2".
    static std::vector<std::string> take();
    /// Done by the callback of this name, after it was written down.
    static void on(const std::string& callback, std::function<void()> work);
    /// What the callbacks of texts answer; 1 at first.
    static long textAnswer;
    static std::vector<std::string> told; ///< what take() takes

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

private:
    static void note(const std::string& what);
};

} // namespace corvane::test
