// A walk over the page that changes nothing on it.
#include "addon/engine/FramePopperLightweight.h"

#include "hostapi/CorHost.h"

namespace corvane::corutiltools {

FramePopperLightweight::FramePopperLightweight() {
    CorUtilFrameLightweightPopStart();
}

FramePopperLightweight::~FramePopperLightweight() {
    popRemainingFrames();
    CorUtilFrameLightweightPopEnd();
}

bool FramePopperLightweight::next() {
    return CorUtilFrameLightweightPopNext() != FALSE;
}

} // namespace corvane::corutiltools
