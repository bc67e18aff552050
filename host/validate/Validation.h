// Finds out whether an add-on keeps to the contract.
#pragma once

#include "host/validate/Journal.h"

#include <string>
#include <vector>

namespace corvane::validate {

struct Verdict {
    std::vector<Finding> findings; ///< in the order in which they were found
    Counts counts;
    bool wasStopped = false; ///< by the user; not all was tried
    bool gaveUp = false;     ///< the add-on ended too many processes
};

/// Tries the library in processes of its own, so nothing that it does harms this one; needs a
/// process server. cpuSeconds is the most computing for one action. The user stops it by
/// something to read from the stop descriptor; -1: he cannot. Throws a HostError when no process
/// can be had.
Verdict validate(const std::string& library, unsigned cpuSeconds, int stop = -1);

} // namespace corvane::validate
