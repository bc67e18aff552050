// Keeps the listeners of state changes, and tells them.
#include "host/core/addons/StateChanges.h"

#include <algorithm>
#include <utility>

namespace corvane::host {

void StateChanges::addCallback(Callback callback, std::string owner) {
    m_callbacks.push_back({callback, std::move(owner)});
}

void StateChanges::addListener(Listener listener, void* clientData, std::string owner) {
    ListenerEntry entry{listener, clientData, std::move(owner)};
    if (std::find(m_listeners.begin(), m_listeners.end(), entry) == m_listeners.end()) {
        m_listeners.push_back(std::move(entry));
    }
}

bool StateChanges::removeListener(Listener listener, void* clientData) {
    const auto found =
        std::find(m_listeners.begin(), m_listeners.end(), ListenerEntry{listener, clientData, {}});
    if (found == m_listeners.end()) {
        return false;
    }
    m_listeners.erase(found);
    return true;
}

void StateChanges::notify(StateChange_e change) {
    const std::vector<CallbackEntry> callbacks = m_callbacks;
    for (const CallbackEntry& entry : callbacks) {
        call(entry.owner, [&entry, change] { entry.callback(change); });
    }
    const std::vector<ListenerEntry> listeners = m_listeners;
    for (const ListenerEntry& entry : listeners) {
        // A listener that another one removed meanwhile may have lost its client data.
        if (std::find(m_listeners.begin(), m_listeners.end(), entry) != m_listeners.end()) {
            call(entry.owner, [&entry, change] { entry.listener(change, entry.clientData); });
        }
    }
}

void StateChanges::call(const std::string& owner, const std::function<void()>& work) const {
    m_caller(ofOwner("state change", owner), work);
}

} // namespace corvane::host
