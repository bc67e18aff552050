// The solution time as text.
#pragma once

#include "host/core/page/DataSet.h"

#include <string>

namespace corvane::scene {

/// "t = 3.6", with as many decimals as the times of the data need, so that the width of the text
/// does not change with time.
std::string timeText(double time, const host::DataSet& data);

} // namespace corvane::scene
