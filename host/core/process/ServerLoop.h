// The life of the process server, from the fork to its end.
#pragma once

#include "host/core/process/Descriptor.h"

#include <sys/types.h>
#include <vector>

namespace corvane::host {

/// Runs in the server, which has one thread and has all signals blocked: it hears of helpers that
/// ended from a descriptor, and of everything else from sockets.
class ServerLoop {
public:
    explicit ServerLoop(Descriptor requests);

    /// Until the client has gone; then ends the helpers and the process.
    [[noreturn]] void run();

private:
    struct Running {
        pid_t pid;
        Descriptor stream; ///< to the client of this helper
        bool isKilled = false;
    };

    bool takeRequest(); ///< false: the client has gone
    void start(Descriptor stream);
    void kill(Running& helper);
    void reap();
    void endHelpers();

    Descriptor m_requests;
    Descriptor m_signals; ///< readable when helpers have ended
    std::vector<Running> m_running;
};

} // namespace corvane::host
