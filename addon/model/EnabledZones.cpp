// The enabled zones of the host's data set.
#include "addon/model/EnabledZones.h"

namespace corvane::corutiltools {

EnabledZones::EnabledZones() {
    m_isAvailable = CorUtilZoneGetEnabled(&m_zones) && m_zones != nullptr;
}

EnabledZones::~EnabledZones() {
    // A refusal may have left a set behind, so the set alone decides.
    if (m_zones != nullptr) {
        CorUtilSetDealloc(&m_zones);
    }
}

long EnabledZones::next(long zone) const {
    return m_isAvailable ? CorUtilSetGetNextMember(m_zones, zone) : 0;
}

} // namespace corvane::corutiltools
