// The process that helpers are forked from.
//
// A fork copies one thread and all locks, so that what is forked from a program with other threads
// may wait for ever. The server is forked before the program has threads, has none itself, and
// makes the helpers. It ends with its client, however that ends, and takes the helpers with it.
#pragma once

#include "host/core/base/HostError.h"
#include "host/core/process/Descriptor.h"

#include <string>
#include <sys/types.h>

namespace corvane::host {

/// Starts the server and ends it: an object of main(), made before anything that makes threads or
/// uses the display, and by the main thread, whose end is the server's. At most one at a time. It
/// closes all files of the server but the standard ones, and keeps nothing of the program in memory
/// but what libraries set up as they were loaded.
///
/// A server that cannot be started is no error before a helper is wanted.
class ProcessServer {
public:
    ProcessServer();
    ~ProcessServer(); ///< helpers that are still there are killed
    ProcessServer(const ProcessServer&) = delete;
    ProcessServer& operator=(const ProcessServer&) = delete;

    pid_t pid() const { return m_pid; } ///< -1: it could not be started

    /// Whether this process has made one, which may still have failed to start.
    static bool isThere() { return s_server != nullptr; }

    /// For Helper: has the server make a helper that answers on this stream. May be called by any
    /// thread. Throws a HostError when no server runs.
    static void makeHelper(int stream);
    /// What a Helper says when the server has died.
    static HostError lost();

private:
    void start();
    void askFor(int stream);

    Descriptor m_requests;
    /// A fork of the client has this object too, but not the right to end the server.
    pid_t m_client;
    pid_t m_pid = -1;
    std::string m_error; ///< why there is none

    static ProcessServer* s_server;
};

} // namespace corvane::host
