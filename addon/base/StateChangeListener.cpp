// Hears of the host's state changes.
#include "addon/base/StateChangeListener.h"

#include "hostapi/CorHost.h"

namespace corvane::corutiltools {

StateChangeListener::StateChangeListener(const Handler& handler)
    : StateChangeListener(handler, HostLock()) {}

StateChangeListener::StateChangeListener(const Handler& handler, const HostLock&)
    : m_handler(handler), m_notifier(StateChangeMode_Synchronous) {}

StateChangeListener::~StateChangeListener() = default;

void StateChangeListener::startListening() {
    const HostLock lock;
    m_notifier.addListener(this);
}

void StateChangeListener::stopListening() {
    const HostLock lock;
    m_notifier.removeListener(this);
}

void StateChangeListener::stateChanged(const toolbox::StateChangeEventInterface& event,
                                       toolbox::StateChangeNotifierInterface& notifier) {
    const HostLock lock;
    m_handler(event, notifier);
    if (event.stateChange() == StateChange_HostQuit) {
        stopListening();
    }
}

} // namespace corvane::corutiltools
