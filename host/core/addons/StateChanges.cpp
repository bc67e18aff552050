// Keeps the listeners of state changes, and tells them.
#include "host/core/addons/StateChanges.h"

#include <algorithm>
#include <utility>

namespace corvane::host {

namespace {

std::string callOf(const std::string& owner) {
    return ofOwner("state change", owner);
}

template <class Entry>
std::shared_ptr<const std::vector<Entry>> with(const std::vector<Entry>& entries, Entry entry) {
    auto more = std::make_shared<std::vector<Entry>>(entries);
    more->push_back(std::move(entry));
    return more;
}

} // namespace

void StateChanges::addCallback(Callback callback, std::string owner) {
    m_callbacks = with(*m_callbacks, CallbackEntry{callback, callOf(owner)});
}

void StateChanges::addListener(Listener listener, void* clientData, std::string owner) {
    ListenerEntry entry{listener, clientData, callOf(owner)};
    if (!hasListener(entry)) {
        m_listeners = with(*m_listeners, std::move(entry));
    }
}

bool StateChanges::removeListener(Listener listener, void* clientData) {
    const ListenerEntry entry{listener, clientData, {}};
    if (!hasListener(entry)) {
        return false;
    }
    auto fewer = std::make_shared<std::vector<ListenerEntry>>(*m_listeners);
    std::erase(*fewer, entry);
    m_listeners = std::move(fewer);
    return true;
}

bool StateChanges::hasListener(const ListenerEntry& entry) const {
    return std::find(m_listeners->begin(), m_listeners->end(), entry) != m_listeners->end();
}

void StateChanges::notify(StateChange_e change) {
    const auto callbacks = m_callbacks;
    for (const CallbackEntry& entry : *callbacks) {
        m_caller(entry.what, [&entry, change] { entry.callback(change); });
    }
    const auto listeners = m_listeners;
    for (const ListenerEntry& entry : *listeners) {
        // A listener that another one removed meanwhile may have lost its client data.
        if (hasListener(entry)) {
            m_caller(entry.what, [&entry, change] { entry.listener(change, entry.clientData); });
        }
    }
}

} // namespace corvane::host
