// What listeners are told when a page has become another one.
#pragma once

#include "hostapi/CorEnums.h"

#include <vector>

namespace corvane::host {

struct PageState;

/// The changes that lead from one state to the other, each kind once, frames before what they show.
/// Nothing for what has no notice of its own: the order of the stack and the size of the work area.
std::vector<StateChange_e> changesBetween(const PageState& before, const PageState& after);

} // namespace corvane::host
