// The add-on's identity towards the host.
#pragma once

#include "hostapi/CorHost.h"

namespace corvane::corutiltools {

// What CorUtilAddOnRegister returned at load; null before that. Every lock bracket is given it.
extern CorAddOnID AddOnID;

} // namespace corvane::corutiltools
