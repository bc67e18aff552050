// The host's one exception for things that went wrong outside of it.
#pragma once

#include <stdexcept>
#include <string>

namespace corvane::host {

/// what() is one sentence for the user: what went wrong, where, and what to do about it.
class HostError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A sentence for the user about any exception: that of a HostError, else one about memory or the
/// file system, or about a mistake in the program, since the bare text of a library's exception
/// helps nobody.
std::string messageOf(const std::exception& error);

} // namespace corvane::host
