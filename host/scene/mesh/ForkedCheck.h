// Work that may bring the process down, tried in another process.
#pragma once

#include "host/core/process/Task.h"

#include <chrono>
#include <string>
#include <vector>

namespace corvane::scene {

/// How long a trial may take.
struct TrialTime {
    unsigned cpuSeconds;
    /// For work that waits for ever. Generous, since a busy computer or a slow file server is no
    /// reason to give up.
    std::chrono::seconds patience;
};

/// Whether the task comes to its end, be it by an exception. False when it crashes or takes longer.
/// It is done by a helper of the process server and changes nothing here. True, untried, when there
/// can be no helper.
bool survives(const host::Task& task, const std::vector<std::string>& arguments,
              const TrialTime& time);

} // namespace corvane::scene
