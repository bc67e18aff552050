// What must hold after a flight, however it ended.
#pragma once

#include "tests/unit/sweeps/Flights.h"

#include <string>

namespace corvane::test {

/// Nothing is locked, suspended, open or recorded, and there is no file that is not complete.
void expectAtRest(FlightScene& scene, const std::string& what);

/// Light, axis, anchor, display lists and perspective among them.
void expectSame(const Appearance& after, const Appearance& before, const std::string& what);

/// Another flight goes well.
void expectPlays(FlightScene& scene, const FlightKind& kind, const std::string& what);

} // namespace corvane::test
