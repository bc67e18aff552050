// The museum: named flights, most of them awkward, that tests, pictures and benchmarks share.
#pragma once

#include "addon/model/Records.h"

#include <ostream>
#include <string>
#include <vector>

namespace corvane::test {

/// The flights turn about the point (0, 0, 0); hosts that play them use it as rotation origin.
struct FlightCase {
    std::string name;
    std::vector<corutiltools::KeyFrame_s> keyFrames;
};

/// What a parameterised test shows of its flight.
std::ostream& operator<<(std::ostream& out, const FlightCase& flight);

/// All of them, in the order of their definition.
const std::vector<FlightCase>& flightCases();

/// Throws std::out_of_range for a name that no flight has.
const FlightCase& flightCase(const std::string& name);

/// Looks at the point (0, 0, 0) from the given distance. Angles in degrees.
corutiltools::View viewOfCentre(double psi, double theta, double alpha, double distance,
                                double width);

} // namespace corvane::test
