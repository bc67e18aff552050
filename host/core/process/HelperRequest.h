// What travels between the client, the server and its helpers.
//
// The client sends the server one end of a stream of the helper's own, as a message of one byte
// with a descriptor. The server forks, answers HelperStarted on that stream, later HelperEnded, and
// reads nothing from it. The helper reads the request from the stream and leaves it to the server.
// The client ends the helper by shutting the stream down, which its death does as well.
#pragma once

#include "host/core/process/Descriptor.h"

#include <cstdint>
#include <string>
#include <sys/types.h>
#include <vector>

namespace corvane::host {

/// 0: none.
struct HelperLimits {
    /// Of address space, besides what the program and its libraries take from the start.
    std::uint64_t memoryBytes = 0;
    /// Of computing, waiting not counted. The helper is ended by SIGXCPU.
    unsigned cpuSeconds = 0;
};

struct HelperRequest {
    std::string task;
    std::vector<std::string> arguments;
    HelperLimits limits;
};

/// The server's first answer.
struct HelperStarted {
    int error = 0; ///< the number of the error when there is no helper
    pid_t pid = -1;
};

/// The server's last answer.
struct HelperEnded {
    int status = 0; ///< as waitpid tells it
};

/// 0, or the number of the error.
int sendRequest(int stream, const HelperRequest& request, const std::vector<int>& descriptors);
/// False when the client has gone.
bool receiveRequest(int stream, HelperRequest& request, std::vector<Descriptor>& descriptors);

} // namespace corvane::host
