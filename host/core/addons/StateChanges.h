// Tells listeners, at once, that the host's state has changed.
#pragma once

#include "host/core/addons/AddOnCaller.h"
#include "hostapi/CorEnums.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace corvane::host {

/// One call per change, after the host's own state is consistent; nothing is coalesced.
class StateChanges {
public:
    /// caller calls callbacks and listeners.
    explicit StateChanges(AddOnCaller caller = callPlainly) : m_caller(std::move(caller)) {}

    using Callback = void (*)(StateChange_e);
    using Listener = void (*)(StateChange_e, void*);

    /// owner names the add-on for the trace.
    void addCallback(Callback callback, std::string owner = {});
    /// A pair of function and data counts once.
    void addListener(Listener listener, void* clientData, std::string owner = {});
    /// False: no such pair. A listener may remove itself while it is told.
    bool removeListener(Listener listener, void* clientData);

    void notify(StateChange_e change);

private:
    struct CallbackEntry {
        Callback callback;
        std::string what; ///< of the call, for the trace
    };
    struct ListenerEntry {
        Listener listener;
        void* clientData;
        std::string what;
        friend bool operator==(const ListenerEntry& a, const ListenerEntry& b) {
            return a.listener == b.listener && a.clientData == b.clientData;
        }
    };
    /// Replaced when one comes or goes, and never changed: who is being told may come and go
    /// meanwhile.
    template <class Entry>
    using Entries = std::shared_ptr<const std::vector<Entry>>;

    bool hasListener(const ListenerEntry& entry) const;

    AddOnCaller m_caller;
    Entries<CallbackEntry> m_callbacks = std::make_shared<std::vector<CallbackEntry>>();
    Entries<ListenerEntry> m_listeners = std::make_shared<std::vector<ListenerEntry>>();
};

} // namespace corvane::host
