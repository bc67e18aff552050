// Streamtrace markers and dashes that travel with the flight.
#include "addon/engine/AnimatorStreams.h"

namespace corvane::corutiltools {

AnimatorStreams::AnimatorStreams(const std::vector<KeyFrame_s>& keyFrames, AnimatorAbstract* inner)
    : AnimatorAbstract(keyFrames, inner), m_timing("StreamAttributes", "StreamTiming") {
    m_timing.getDouble(m_savedAnchor, "TimeAnchor");
    m_anchor = m_savedAnchor;
    double deltaTime = 0.0;
    m_timing.getDouble(deltaTime, "DeltaTime");
    m_anchorStep = deltaTime / 5.0;
}

AnimatorStreams::~AnimatorStreams() {
    m_timing.set(m_savedAnchor, "TimeAnchor");
}

void AnimatorStreams::drawFrameAtIndex(unsigned long /*index*/) {
    m_anchor += m_anchorStep;
    m_timing.set(m_anchor, "TimeAnchor");
}

} // namespace corvane::corutiltools
