// Looks up variables, and the zones of a solution time.
#include "host/core/page/DataSet.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <unordered_map>

namespace corvane::host {

namespace {

constexpr double timeTolerance = 1e-9; ///< relative

bool isReached(double zoneTime, double solutionTime) {
    const double scale = std::max(std::abs(zoneTime), std::abs(solutionTime));
    return zoneTime <= solutionTime + timeTolerance * scale;
}

/// Whether a zone shows its strand better than the one chosen so far: the latest of those that are
/// reached, else the earliest.
bool isBetter(const Zone& zone, const Zone& chosen, double solutionTime) {
    const bool chosenReached = isReached(chosen.solutionTime, solutionTime);
    if (isReached(zone.solutionTime, solutionTime)) {
        return !chosenReached || zone.solutionTime > chosen.solutionTime;
    }
    return !chosenReached && zone.solutionTime < chosen.solutionTime;
}

/// Ascending.
std::vector<double> timesOfStrands(const DataSet& data) {
    std::set<double> times;
    for (const Zone& zone : data.zones) {
        if (zone.enabled && zone.strand > 0) {
            times.insert(zone.solutionTime);
        }
    }
    return {times.begin(), times.end()};
}

/// The first of the times at which other zones are shown than at solutionTime.
std::optional<double> firstThatDiffers(const DataSet& data, double solutionTime,
                                       const std::vector<double>& times) {
    const std::vector<int> shown = zonesAtTime(data, solutionTime);
    const auto found = std::find_if(times.begin(), times.end(),
                                    [&](double time) { return zonesAtTime(data, time) != shown; });
    return found == times.end() ? std::nullopt : std::optional(*found);
}

} // namespace

const Variable* DataSet::findVariable(const std::string& name) const {
    const auto found = std::find_if(variables.begin(), variables.end(),
                                    [&name](const Variable& v) { return v.name == name; });
    return found == variables.end() ? nullptr : &*found;
}

const Variable* DataSet::findVector(const std::string& name) const {
    const Variable* variable = findVariable(name);
    return variable != nullptr && variable->components == 3 ? variable : nullptr;
}

bool DataSet::hasQuantity(const std::string& name) const {
    if (findVariable(name) != nullptr) {
        return true;
    }
    const std::size_t colon = name.rfind(':');
    if (colon == std::string::npos) {
        return false;
    }
    const std::string component = name.substr(colon + 1);
    return (component == "X" || component == "Y" || component == "Z") &&
           findVector(name.substr(0, colon)) != nullptr;
}

bool DataSet::isTransient() const {
    return std::any_of(zones.begin(), zones.end(),
                       [](const Zone& zone) { return zone.enabled && zone.strand > 0; });
}

std::vector<int> zonesAtTime(const DataSet& data, double solutionTime) {
    std::vector<int> chosen;
    std::unordered_map<long, std::size_t> placeOfStrand; // in chosen
    for (std::size_t i = 0; i < data.zones.size(); ++i) {
        const Zone& zone = data.zones[i];
        if (!zone.enabled) {
            continue;
        }
        const int index = static_cast<int>(i);
        if (zone.strand <= 0) {
            chosen.push_back(index);
            continue;
        }
        const auto [place, isNew] = placeOfStrand.try_emplace(zone.strand, chosen.size());
        if (isNew) {
            chosen.push_back(index);
        } else if (int& best = chosen[place->second];
                   isBetter(zone, data.zones[static_cast<std::size_t>(best)], solutionTime)) {
            best = index;
        }
    }
    std::sort(chosen.begin(), chosen.end());
    return chosen;
}

std::optional<double> timeAfter(const DataSet& data, double solutionTime) {
    std::vector<double> times = timesOfStrands(data);
    std::erase_if(times, [&](double time) { return isReached(time, solutionTime); });
    return firstThatDiffers(data, solutionTime, times);
}

std::optional<double> timeBefore(const DataSet& data, double solutionTime) {
    std::vector<double> times = timesOfStrands(data);
    std::erase_if(times, [&](double time) { return !isReached(time, solutionTime); });
    std::reverse(times.begin(), times.end());
    return firstThatDiffers(data, solutionTime, times);
}

} // namespace corvane::host
