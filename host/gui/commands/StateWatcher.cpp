#include "host/gui/commands/StateWatcher.h"

#include "host/core/Host.h"

#include <utility>

namespace corvane::gui {

StateWatcher::StateWatcher(host::Session& session, std::function<void(StateChange_e)> onChange)
    : m_session(session), m_onChange(std::move(onChange)) {
    m_session.stateChanges().addListener(&StateWatcher::notify, this);
}

StateWatcher::~StateWatcher() {
    m_session.stateChanges().removeListener(&StateWatcher::notify, this);
}

void StateWatcher::notify(StateChange_e change, void* watcher) {
    static_cast<StateWatcher*>(watcher)->m_onChange(change);
}

} // namespace corvane::gui
