// Work that may bring the process down, tried in another process.
#pragma once

#include "host/core/process/HelperRequest.h"
#include "host/core/process/Task.h"

#include <string>
#include <vector>

namespace corvane::scene {

/// How work ended that was tried.
struct TrialEnd {
    enum class Kind {
        Done,
        Refused, ///< it threw
        Crashed,
        Endless, ///< it needed more computing than it may
        Untried, ///< there can be no helper
    };

    Kind kind = Kind::Untried;
    std::string sentence{}; ///< what a HostError said that the work threw
};

/// Does the work in a helper of the process server; nothing changes here. Time is measured as
/// computing alone, since a busy computer or a slow file server is no reason to give up.
TrialEnd tryInHelper(const host::Task& task, const std::vector<std::string>& arguments,
                     const host::HelperLimits& limits);

/// For the work itself: what it throws becomes the end that tryInHelper() answers. To be called
/// once, with all that is to be done.
int tellEnd(const host::TaskInput& input, void (*work)(const std::vector<std::string>& arguments));

} // namespace corvane::scene
