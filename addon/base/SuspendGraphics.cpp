// A scope in which the host draws nothing.
#include "addon/base/SuspendGraphics.h"

#include "hostapi/CorHost.h"

namespace corvane::corutiltools {

SuspendGraphics::SuspendGraphics() {
    CorUtilDrawGraphics(FALSE);
}

SuspendGraphics::~SuspendGraphics() {
    CorUtilDrawGraphics(TRUE);
}

} // namespace corvane::corutiltools
