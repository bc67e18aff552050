// Hears of the host's state changes.
#include "addon/base/StateChangeListener.h"

#include "hostapi/CorHost.h"

namespace corvane::corutiltools {

StateChangeListener::StateChangeListener(Handler const& handler)
    : StateChangeListener(handler, HostLock()) {}

StateChangeListener::StateChangeListener(Handler const& handler, HostLock const&)
    : m_handler(handler), m_notifier(StateChangeMode_Synchronous) {}

StateChangeListener::~StateChangeListener() = default;

void StateChangeListener::startListening() {
    HostLock const lock;
    m_notifier.addListener(this);
}

void StateChangeListener::stopListening() {
    HostLock const lock;
    m_notifier.removeListener(this);
}

void StateChangeListener::stateChanged(toolbox::StateChangeEventInterface const& event,
                                       toolbox::StateChangeNotifierInterface& notifier) {
    HostLock const lock;
    m_handler(event, notifier);
    if (event.stateChange() == StateChange_HostQuit)
        stopListening();
}

} // namespace corvane::corutiltools
