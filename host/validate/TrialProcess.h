// Runs a trial in a process of its own, and reads its journal.
#pragma once

#include "host/validate/Journal.h"
#include "host/validate/Trial.h"

#include <optional>
#include <string>
#include <vector>

namespace corvane::validate {

/// What became of a trial.
struct TrialEnd {
    std::vector<Finding> findings;
    Counts counts;
    bool wasFailureReached = false; ///< of an order with a failing call
    Action at;                      ///< the last one
    bool wasStopped = false;        ///< by the user, before its end
    std::string failing;            ///< the operation that failed in it; empty: none
    std::string death; ///< how the add-on ended the process; empty when it came to its end
};

/// Ends early when the stop descriptor (-1: there is none) can be read from. Throws a HostError
/// when no process can be had.
TrialEnd runTrial(const TrialOrder& order, int stop);

} // namespace corvane::validate
