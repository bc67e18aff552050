// One process of a validation: an add-on, a host in memory, and a journal.
#pragma once

#include "host/core/process/Task.h"
#include "host/validate/Walk.h"

#include <cstddef>
#include <string>
#include <vector>

namespace corvane::validate {

/// What a trial is asked to do.
struct TrialOrder {
    enum class Kind {
        Everything, ///< what users do, and all calls of the host that fail meanwhile
        Backwards,  ///< the same, with all that can be chosen gone through from its end
        Entry,      ///< the entry point, in which one call fails, and what users do then
        Windowless  ///< a run without windows
    };

    Kind kind = Kind::Everything;
    std::string addOn;           ///< the loader's path
    std::string folder;          ///< to work in; files that the add-on writes lie there
    unsigned cpuSeconds = 0;     ///< for one action
    std::size_t failingCall = 0; ///< of the entry point
    Avoided avoided;
};

/// The arguments of the task, and back.
std::vector<std::string> argumentsOf(const TrialOrder& order);
TrialOrder orderFrom(const std::vector<std::string>& arguments);

/// Takes argumentsOf() an order, and a descriptor that the journal goes to.
extern const host::Task trying;

} // namespace corvane::validate
