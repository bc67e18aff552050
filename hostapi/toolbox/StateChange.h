// Interfaces of state changes: the event, who hears of it, and who tells.
#pragma once

#include "hostapi/CorEnums.h"

namespace corvane::toolbox {

class StateChangeEventInterface {
public:
    virtual ~StateChangeEventInterface() {}

    // The code of the change.
    virtual StateChange_e stateChange() const = 0;
};

class StateChangeNotifierInterface;

class StateChangeListenerInterface {
public:
    virtual ~StateChangeListenerInterface() {}

    // Called after the change, when the host's state is consistent again. The event lives as long
    // as the call. The listener may remove itself or others from the notifier.
    virtual void stateChanged(const StateChangeEventInterface& event,
                              StateChangeNotifierInterface& notifier) = 0;
};

// Keeps a set of listeners, in the order in which they were added. Does not own them.
class StateChangeNotifierInterface {
public:
    virtual ~StateChangeNotifierInterface() {}

    // A listener that is added twice counts once; NULL is ignored.
    virtual void addListener(StateChangeListenerInterface* l) = 0;

    // Does nothing when the listener is absent.
    virtual void removeListener(StateChangeListenerInterface* l) = 0;
};

} // namespace corvane::toolbox
