// The solution times of a data set.
#pragma once

#include <vector>

namespace corvane::host {
class DataSet;
}

namespace corvane::gui {

/// Ascending, without duplicates; empty for steady data.
std::vector<double> solutionTimes(const host::DataSet& data);

/// The index of the largest time not above the given one (tolerance as in zonesAtTime); 0 if there
/// is none.
int indexAt(const std::vector<double>& times, double time);

} // namespace corvane::gui
