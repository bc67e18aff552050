// A process that works for this one.
#pragma once

#include "host/core/process/Descriptor.h"
#include "host/core/process/HelperRequest.h"
#include "host/core/process/Task.h"

#include <chrono>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace corvane::host {

/// How a helper ended.
struct HelperEnd {
    int exitCode = -1; ///< what the task answered; -1: it did not come to its end
    int signal = 0;    ///< what ended it otherwise

    bool isExit() const { return signal == 0; }
};

/// Started by the process server, which must run, when this is made, and killed, if it still runs,
/// when this is destroyed. Helpers may be made by any thread, as many at once as the system allows.
/// Each is used by one thread at a time, except for terminate().
class Helper {
public:
    /// The helper gets copies of the descriptors, at most mostDescriptors; the client's stay its
    /// own. Throws a HostError when there can be none.
    explicit Helper(const Task& task, const std::vector<std::string>& arguments = {},
                    const HelperLimits& limits = {}, const std::vector<int>& descriptors = {});

    pid_t pid() const { return m_pid; }

    /// Both throw a HostError when the server has died, and the helper with it.
    HelperEnd wait();
    std::optional<HelperEnd> waitFor(std::chrono::milliseconds patience); ///< empty: it still runs

    /// Asks for its end, which wait() then tells. May be called by another thread than waits.
    void terminate();

private:
    HelperEnd readEnd();

    Descriptor m_stream;
    pid_t m_pid = -1;
    std::optional<HelperEnd> m_end;
};

} // namespace corvane::host
