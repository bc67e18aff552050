// What killed runs have left.
#pragma once

#include <string>
#include <vector>

namespace corvane::host {

/// Removes the files in the making of this destination that this user's runs on this machine have
/// left: those whose lock is free. Answers their names.
std::vector<std::string> removeLeftovers(const std::string& destination);

} // namespace corvane::host
