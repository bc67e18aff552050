#include "host/gui/time/SolutionTimes.h"

#include "host/core/page/DataSet.h"

#include <algorithm>
#include <cmath>

namespace corvane::gui {

std::vector<double> solutionTimes(const host::DataSet& data) {
    std::vector<double> times;
    for (const host::Zone& zone : data.zones) {
        if (zone.enabled && zone.strand > 0) {
            times.push_back(zone.solutionTime);
        }
    }
    std::sort(times.begin(), times.end());
    times.erase(std::unique(times.begin(), times.end()), times.end());
    return times;
}

int indexAt(const std::vector<double>& times, double time) {
    const double slack = 1e-9 * std::abs(time);
    const auto after = std::upper_bound(times.begin(), times.end(), time + slack);
    return std::max(0, static_cast<int>(after - times.begin()) - 1);
}

} // namespace corvane::gui
