// Listens to the host's state changes for the lifetime of the object.
#pragma once

#include "hostapi/CorEnums.h"

#include <functional>

namespace corvane::host {
class Session;
}

namespace corvane::gui {

class StateWatcher {
public:
    /// The session must outlive the watcher.
    StateWatcher(host::Session& session, std::function<void(StateChange_e)> onChange);
    ~StateWatcher();
    StateWatcher(const StateWatcher&) = delete;
    StateWatcher& operator=(const StateWatcher&) = delete;

private:
    static void notify(StateChange_e change, void* watcher);

    host::Session& m_session;
    std::function<void(StateChange_e)> m_onChange;
};

} // namespace corvane::gui
