// A verdict as lines for the author of the add-on.
#pragma once

#include "host/validate/Validation.h"

#include <string>

namespace corvane::validate {

bool isKept(const Verdict& verdict); ///< every rule

/// A line for each rule that was kept, and for each kind of breach of one that was broken: the
/// rule, "kept" or "broken", where, what happened, and what to do. The last line tells what was
/// tried.
std::string reportOf(const std::string& library, const Verdict& verdict);

} // namespace corvane::validate
