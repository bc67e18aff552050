// Closes a dialog when the active frame is no longer one that it works on.
#pragma once

#include "addon/base/OnIdleManager.h"
#include "addon/base/StateChangeListener.h"

#include <boost/bind/bind.hpp>

namespace corvane::corutiltools {

// Watches for the dialog from startListening on, until it has closed it. The dialog offers
// okToLaunch(), whether it can work now, and drop(), which closes it.
template <typename Dialog>
class DialogDropper {
public:
    // The dialog must outlive the dropper.
    explicit DialogDropper(Dialog& dialog)
        : m_dialog(dialog),
          m_listener(boost::bind(&DialogDropper::stateChanged, this, boost::placeholders::_1,
                                 boost::placeholders::_2)) {}

    DialogDropper(const DialogDropper&) = delete;
    DialogDropper& operator=(const DialogDropper&) = delete;

    // To be called each time the dialog comes up.
    void startListening() { m_listener.startListening(); }

    // Many changes are the first half of another one, so the verdict waits for idle time.
    void stateChanged(const toolbox::StateChangeEventInterface&,
                      toolbox::StateChangeNotifierInterface&) {
        if (!m_dialog.okToLaunch()) {
            m_onIdle.addCallback(boost::bind(&DialogDropper::onIdleCallback, this));
        }
    }

    void onIdleCallback() {
        if (m_dialog.okToLaunch()) {
            return;
        }
        m_dialog.drop();
        m_listener.stopListening();
    }

private:
    Dialog& m_dialog;
    StateChangeListener m_listener;
    OnIdleManager m_onIdle;
};

} // namespace corvane::corutiltools
