// The museum: named flights, most of them awkward, that tests, pictures and benchmarks share.
#include "tests/cases/FlightCases.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace corvane::test {

using corutiltools::KeyFrame_s;
using corutiltools::View;

namespace {

View moved(View view, double dx, double dy, double dz) {
    view.setX(view.x() + dx);
    view.setY(view.y() + dy);
    view.setZ(view.z() + dz);
    return view;
}

View zoomed(View view, double width) {
    view.setWidth(width);
    return view;
}

// Key frames named after the flight, with solution times 0, 1, 2, ...
FlightCase flight(const std::string& name, const std::vector<View>& views,
                  const std::vector<unsigned long>& frameCounts) {
    FlightCase result{name, {}};
    for (std::size_t i = 0; i < views.size(); ++i) {
        result.keyFrames.push_back(KeyFrame_s{views[i], name + " " + std::to_string(i + 1),
                                              frameCounts.at(i), static_cast<double>(i)});
    }
    return result;
}

std::vector<FlightCase> makeFlights() {
    // A quarter from above, as a newly loaded scene is seen.
    const View start = viewOfCentre(60.0, 240.0, 0.0, 10.0, 4.0);
    const View orbited = viewOfCentre(60.0, 360.0, 0.0, 10.0, 4.0);
    std::vector<FlightCase> flights;
    flights.push_back(flight("Orbit", {start, orbited}, {30, 30}));
    flights.push_back(flight(
        "TiltedOrbit",
        {viewOfCentre(20.0, 10.0, 5.0, 10.0, 4.0), viewOfCentre(110.0, 80.0, 35.0, 10.0, 4.0)},
        {45, 1}));
    // The short way is 20 degrees through straight down, not 340 back over the top.
    flights.push_back(flight(
        "PsiThrough180",
        {viewOfCentre(170.0, 30.0, 0.0, 10.0, 4.0), viewOfCentre(-170.0, 30.0, 0.0, 10.0, 4.0)},
        {20, 30}));
    flights.push_back(flight(
        "ThetaThrough360",
        {viewOfCentre(60.0, 350.0, 0.0, 10.0, 4.0), viewOfCentre(60.0, 10.0, 0.0, 10.0, 4.0)},
        {10, 30}));
    flights.push_back(flight(
        "AlphaWraps",
        {viewOfCentre(60.0, 240.0, 150.0, 10.0, 4.0), viewOfCentre(60.0, 240.0, -150.0, 10.0, 4.0)},
        {12, 30}));
    // As far one way as the other.
    flights.push_back(
        flight("HalfTurn",
               {viewOfCentre(60.0, 0.0, 0.0, 10.0, 4.0), viewOfCentre(60.0, 180.0, 0.0, 10.0, 4.0)},
               {36, 30}));
    flights.push_back(flight("ZoomOnly", {start, zoomed(start, 0.5)}, {14, 30}));
    flights.push_back(flight("PanOnly", {start, moved(start, 3.0, -2.0, 1.0)}, {10, 30}));
    flights.push_back(
        flight("DollyIn", {start, viewOfCentre(60.0, 240.0, 0.0, 2.0, 4.0)}, {16, 30}));
    flights.push_back(flight("OneKey", {start}, {30}));
    flights.push_back(flight("TwoKeysCountOne", {start, orbited}, {1, 30}));
    flights.push_back(flight("TwoKeysCountTwo", {start, orbited}, {2, 30}));
    flights.push_back(flight("ZeroCountFirst", {start, orbited}, {0, 5}));
    flights.push_back(flight("ZeroCountMiddle", {start, orbited, zoomed(orbited, 1.0)}, {3, 0, 5}));
    flights.push_back(flight("LongHold", {start, start}, {25, 30}));
    flights.push_back(flight("FourKeysMixed",
                             {start, viewOfCentre(85.0, 300.0, 20.0, 8.0, 3.0),
                              moved(viewOfCentre(30.0, 350.0, -170.0, 12.0, 5.0), 0.5, 0.25, -1.0),
                              viewOfCentre(95.0, 20.0, 175.0, 6.0, 2.0)},
                             {10, 1, 20, 5}));
    flights.push_back(flight("HugeCount", {start, orbited}, {10000, 30}));
    return flights;
}

} // namespace

std::ostream& operator<<(std::ostream& out, const FlightCase& flight) {
    return out << flight.name;
}

const std::vector<FlightCase>& flightCases() {
    static const std::vector<FlightCase> flights = makeFlights();
    return flights;
}

const FlightCase& flightCase(const std::string& name) {
    const auto found =
        std::find_if(flightCases().begin(), flightCases().end(),
                     [&name](const FlightCase& flight) { return flight.name == name; });
    if (found == flightCases().end()) {
        throw std::out_of_range("no flight is named " + name);
    }
    return *found;
}

View viewOfCentre(double psi, double theta, double alpha, double distance, double width) {
    const double radians = std::acos(-1.0) / 180.0;
    const double sinPsi = std::sin(psi * radians);
    return View(-distance * sinPsi * std::sin(theta * radians),
                -distance * sinPsi * std::cos(theta * radians), distance * std::cos(psi * radians),
                psi, theta, alpha, width);
}

} // namespace corvane::test
