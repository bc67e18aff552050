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
    explicit StateChangeNotifier(StateChangeMode_e mode) {
        CorUtilStateChangeAddListener(mode, deliver, this);
    }
    ~StateChangeNotifier() { CorUtilStateChangeRemoveListener(deliver, this); }
    StateChangeNotifier(const StateChangeNotifier&) = delete;
    StateChangeNotifier& operator=(const StateChangeNotifier&) = delete;

    void addListener(StateChangeListenerInterface* l) {
        if (l && std::find(m_listeners.begin(), m_listeners.end(), l) == m_listeners.end())
            m_listeners.push_back(l);
    }
    void removeListener(StateChangeListenerInterface* l) {
        m_listeners.erase(std::remove(m_listeners.begin(), m_listeners.end(), l),
                          m_listeners.end());
    }

private:
    class Event : public StateChangeEventInterface {
    public:
        explicit Event(StateChange_e code) : m_code(code) {}
        StateChange_e stateChange() const { return m_code; }

    private:
        StateChange_e m_code;
    };

    static void deliver(StateChange_e stateChange, void* clientData) {
        StateChangeNotifier& self = *static_cast<StateChangeNotifier*>(clientData);
        const Event event(stateChange);
        const std::vector<StateChangeListenerInterface*> listeners = self.m_listeners;
        for (StateChangeListenerInterface* listener : listeners)
            listener->stateChanged(event, self);
    }

    std::vector<StateChangeListenerInterface*> m_listeners;
};

} // namespace corvane::toolbox
