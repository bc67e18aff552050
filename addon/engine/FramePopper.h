// A walk over the page that brings every frame to the top in turn.
#pragma once

#include "addon/engine/FramePopperAbstract.h"

namespace corvane::corutiltools {

// Every frame becomes the active one, with drawing suspended. At the end the frames are stacked as
// before and the frame that was active is active again.
class FramePopper : public FramePopperAbstract {
public:
    FramePopper();
    ~FramePopper() override;

    bool next() override;

private:
    long m_savedFrameID;
    long m_topFrameID;
    bool m_hasMoreFrames = true;
};

} // namespace corvane::corutiltools
