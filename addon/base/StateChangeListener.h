// Hears of the host's state changes.
#pragma once

#include "addon/base/HostLock.h"
#include "hostapi/toolbox/StateChange.h"
#include "hostapi/toolbox/StateChangeNotifier.h"

#include <boost/function.hpp>

namespace corvane::corutiltools {

// Owns the notifier that it listens to, and hands every change to its handler, under the host's
// lock. Stops listening by itself when the host quits.
class StateChangeListener : public virtual toolbox::StateChangeListenerInterface {
public:
    using Handler = boost::function<void(const toolbox::StateChangeEventInterface&,
                                         toolbox::StateChangeNotifierInterface&)>;

    // Does not listen yet.
    explicit StateChangeListener(const Handler& handler);
    ~StateChangeListener() override;

    StateChangeListener(const StateChangeListener&) = delete;
    StateChangeListener& operator=(const StateChangeListener&) = delete;

    // Starting twice counts once.
    void startListening();
    void stopListening();

    // Throws what the handler throws; boost::bad_function_call for an empty handler.
    void stateChanged(const toolbox::StateChangeEventInterface& event,
                      toolbox::StateChangeNotifierInterface& notifier) override;

private:
    // The notifier registers with the host while the lock of the caller lives.
    StateChangeListener(const Handler& handler, const HostLock& lock);

    Handler m_handler;
    toolbox::StateChangeNotifier m_notifier;
};

} // namespace corvane::corutiltools
