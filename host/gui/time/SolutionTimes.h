// The times at which data can be shown.
#pragma once

#include <vector>

namespace corvane::host {
class DataSet;
}

namespace corvane::gui {

/// Ascending, without doubles; empty for data that do not change with time.
std::vector<double> solutionTimes(const host::DataSet& data);

/// The place of the largest time not above the given one (tolerance as in zonesAtTime); the first
/// one when there is none.
int indexAt(const std::vector<double>& times, double time);

} // namespace corvane::gui
