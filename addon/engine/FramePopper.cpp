// A walk over the page that brings every frame to the top in turn.
#include "addon/engine/FramePopper.h"

#include "hostapi/CorHost.h"

namespace corvane::corutiltools {

FramePopper::FramePopper() : m_savedFrameID(CorUtilFrameGetUniqueID()) {
    CorUtilFrameActivateTop();
    m_topFrameID = CorUtilFrameGetUniqueID();
    CorUtilDrawGraphics(FALSE);
}

FramePopper::~FramePopper() {
    popRemainingFrames();
    CorUtilFrameActivateByUniqueID(m_savedFrameID);
    CorUtilDrawGraphics(TRUE);
}

bool FramePopper::next() {
    if (m_hasMoreFrames) {
        CorUtilFramePushTop();
        m_hasMoreFrames = m_topFrameID != CorUtilFrameGetUniqueID();
    }
    return m_hasMoreFrames;
}

} // namespace corvane::corutiltools
