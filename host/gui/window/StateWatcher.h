// Hears of the host's state changes for as long as it lives.
#pragma once

#include "hostapi/CorEnums.h"

#include <functional>

namespace corvane::host {
class Application;
}

namespace corvane::gui {

class StateWatcher {
public:
    /// The application must outlive the watcher.
    StateWatcher(host::Application& application, std::function<void(StateChange_e)> onChange);
    ~StateWatcher();
    StateWatcher(const StateWatcher&) = delete;
    StateWatcher& operator=(const StateWatcher&) = delete;

private:
    static void hear(StateChange_e change, void* watcher);

    host::Application& m_application;
    std::function<void(StateChange_e)> m_onChange;
};

} // namespace corvane::gui
