// Streamtrace markers and dashes that travel with the flight.
#pragma once

#include "addon/engine/AnimatorAbstract.h"
#include "hostapi/CorHost.h"

namespace corvane::corutiltools {

// Moves the streamtrace timing anchor by one fifth of the delta time with every frame drawn,
// whichever it is, and puts it back when it is destroyed. A host failing there ends the program, as
// a destructor must not throw.
class AnimatorStreams : public AnimatorAbstract {
public:
    AnimatorStreams(const std::vector<KeyFrame_s>& keyFrames, AnimatorAbstract* inner);
    ~AnimatorStreams() override;

    void drawFrameAtIndex(unsigned long index) override;

private:
    double m_savedAnchor = 0.0;
    double m_anchor = 0.0;
    double m_anchorStep = 0.0;
    toolbox::StyleValue m_timing;
};

} // namespace corvane::corutiltools
