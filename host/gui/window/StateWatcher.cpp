// Hears of the host's state changes for as long as it lives.
#include "host/gui/window/StateWatcher.h"

#include "host/core/Application.h"

#include <utility>

namespace corvane::gui {

StateWatcher::StateWatcher(host::Application& application,
                           std::function<void(StateChange_e)> onChange)
    : m_application(application), m_onChange(std::move(onChange)) {
    m_application.stateChanges().addListener(&StateWatcher::hear, this);
}

StateWatcher::~StateWatcher() {
    m_application.stateChanges().removeListener(&StateWatcher::hear, this);
}

void StateWatcher::hear(StateChange_e change, void* watcher) {
    static_cast<StateWatcher*>(watcher)->m_onChange(change);
}

} // namespace corvane::gui
