// Keeps the listeners of state changes, and tells them.
#include "host/core/addons/StateChanges.h"

#include <algorithm>

namespace corvane::host {

void StateChanges::addCallback(Callback callback) {
    m_callbacks.push_back(callback);
}

void StateChanges::addListener(Listener listener, void* clientData) {
    const Entry entry{listener, clientData};
    if (std::find(m_listeners.begin(), m_listeners.end(), entry) == m_listeners.end()) {
        m_listeners.push_back(entry);
    }
}

bool StateChanges::removeListener(Listener listener, void* clientData) {
    const auto found =
        std::find(m_listeners.begin(), m_listeners.end(), Entry{listener, clientData});
    if (found == m_listeners.end()) {
        return false;
    }
    m_listeners.erase(found);
    return true;
}

void StateChanges::notify(StateChange_e change) {
    const std::vector<Callback> callbacks = m_callbacks;
    for (const Callback callback : callbacks) {
        call([callback, change] { callback(change); });
    }
    const std::vector<Entry> listeners = m_listeners;
    for (const Entry& entry : listeners) {
        // A listener that another one removed meanwhile may have lost its client data.
        if (std::find(m_listeners.begin(), m_listeners.end(), entry) != m_listeners.end()) {
            call([&entry, change] { entry.listener(change, entry.clientData); });
        }
    }
}

void StateChanges::call(const std::function<void()>& work) const {
    if (caller) {
        caller(work);
    } else {
        work();
    }
}

} // namespace corvane::host
