// Tells listeners of the host's state changes.
#pragma once

#include "hostapi/CorStateChange.h"
#include "hostapi/toolbox/StateChange.h"

#include <algorithm>
#include <vector>

namespace corvane::toolbox {

// Registers with the host when it is made and removes itself when it is destroyed, which may be
// after the host's shut-down. Listeners hear of a change in the order in which they were added;
// adding or removing one while a change is delivered takes effect for the next change. A notifier
// must not be destroyed while it delivers.
class StateChangeNotifier : public StateChangeNotifierInterface {
public:
    explicit StateChangeNotifier(StateChangeMode_e mode);
    ~StateChangeNotifier();
    StateChangeNotifier(const StateChangeNotifier&) = delete;
    StateChangeNotifier& operator=(const StateChangeNotifier&) = delete;

    void addListener(StateChangeListenerInterface* l);
    void removeListener(StateChangeListenerInterface* l);

private:
    struct Impl;
    Impl* m_impl;
};

struct StateChangeNotifier::Impl {
    class Event : public StateChangeEventInterface {
    public:
        explicit Event(StateChange_e code) : m_code(code) {}
        StateChange_e stateChange() const { return m_code; }

    private:
        StateChange_e m_code;
    };

    explicit Impl(StateChangeNotifier& notifier) : m_notifier(notifier) {}

    static void deliver(StateChange_e stateChange, void* clientData) {
        const Impl& self = *static_cast<Impl*>(clientData);
        const Event event(stateChange);
        const std::vector<StateChangeListenerInterface*> listeners = self.m_listeners;
        for (StateChangeListenerInterface* listener : listeners)
            listener->stateChanged(event, self.m_notifier);
    }

    StateChangeNotifier& m_notifier;
    std::vector<StateChangeListenerInterface*> m_listeners;
};

inline StateChangeNotifier::StateChangeNotifier(StateChangeMode_e mode) : m_impl(new Impl(*this)) {
    CorUtilStateChangeAddListener(mode, Impl::deliver, m_impl);
}

inline StateChangeNotifier::~StateChangeNotifier() {
    CorUtilStateChangeRemoveListener(Impl::deliver, m_impl);
    delete m_impl;
}

inline void StateChangeNotifier::addListener(StateChangeListenerInterface* l) {
    std::vector<StateChangeListenerInterface*>& listeners = m_impl->m_listeners;
    if (l && std::find(listeners.begin(), listeners.end(), l) == listeners.end())
        listeners.push_back(l);
}

inline void StateChangeNotifier::removeListener(StateChangeListenerInterface* l) {
    std::vector<StateChangeListenerInterface*>& listeners = m_impl->m_listeners;
    listeners.erase(std::remove(listeners.begin(), listeners.end(), l), listeners.end());
}

} // namespace corvane::toolbox
