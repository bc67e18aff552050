// Tells listeners, at once, that the host's state has changed.
#pragma once

#include "hostapi/CorEnums.h"

#include <functional>
#include <vector>

namespace corvane::host {

/// One call per change, after the host's own state is consistent; nothing is coalesced.
class StateChanges {
public:
    using Callback = void (*)(StateChange_e);
    using Listener = void (*)(StateChange_e, void*);

    void addCallback(Callback callback);
    /// A pair of function and data counts once.
    void addListener(Listener listener, void* clientData);
    /// False: no such pair. A listener may remove itself while it is told.
    bool removeListener(Listener listener, void* clientData);

    void notify(StateChange_e change);

    /// How a call to the outside is made; the application puts its exception wall here.
    std::function<void(const std::function<void()>&)> caller;

private:
    struct Entry {
        Listener listener;
        void* clientData;
        friend bool operator==(const Entry&, const Entry&) = default;
    };
    void call(const std::function<void()>& work) const;

    std::vector<Callback> m_callbacks;
    std::vector<Entry> m_listeners;
};

} // namespace corvane::host
