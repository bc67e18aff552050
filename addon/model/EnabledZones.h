// The enabled zones of the host's data set.
#pragma once

#include "hostapi/CorHost.h"

namespace corvane::corutiltools {

// Owns the host's set of enabled zones for its lifetime:
//     EnabledZones zones;
//     for (long zone = zones.next(0); zone != 0; zone = zones.next(zone)) ...
class EnabledZones {
public:
    EnabledZones();
    ~EnabledZones();

    EnabledZones(const EnabledZones&) = delete;
    EnabledZones& operator=(const EnabledZones&) = delete;

    // The zone after the given one, the first one after 0; 0 when there is no further one.
    long next(long zone) const;

private:
    CorSet m_zones = nullptr;
    bool m_isAvailable = false;
};

} // namespace corvane::corutiltools
