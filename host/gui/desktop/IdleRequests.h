// The host's requests for idle time, as a timer.
#pragma once

#include "host/core/ports/Ports.h"

#include <QTimer>

namespace corvane::gui {

/// Times out once after a request, as soon as the event loop has nothing else to do. Of several
/// requests the last one counts.
class IdleRequests : public QTimer, public host::IdleTimer {
public:
    IdleRequests() { setSingleShot(true); }

    void requestIdle() override { start(0); }
};

} // namespace corvane::gui
