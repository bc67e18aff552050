// The life of a helper, from the fork to its end.
#pragma once

#include "host/core/process/Descriptor.h"

#include <sys/types.h>

namespace corvane::host {

/// Called in the new process, which holds nothing of the server but the stream: reads the request
/// from it and does the task. Nothing is cleaned up at the end, least of all what the program that
/// this is a copy of has; output that a task left in buffers is lost.
[[noreturn]] void runHelper(Descriptor stream, pid_t server);

} // namespace corvane::host
