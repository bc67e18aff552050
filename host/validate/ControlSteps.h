// What a user can do with one control.
#pragma once

#include "host/validate/Steps.h"

#include <vector>

namespace corvane::validate {

/// None for what can only be looked at.
std::vector<Step> stepsWith(const host::Control& control, host::Session& session, ItemOrder order);

} // namespace corvane::validate
