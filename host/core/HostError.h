// The host's one exception for things that went wrong outside of it.
#pragma once

#include <stdexcept>

namespace corvane::host {

/// what() is one sentence for the user: what went wrong, where, and what to do about it.
class HostError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace corvane::host
