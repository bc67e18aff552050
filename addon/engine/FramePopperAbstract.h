// A walk over all frames of the host's page.
#pragma once

#include "addon/base/HostLock.h"

namespace corvane::corutiltools {

// Holds one host lock for its lifetime. The walk stands on the first frame from the beginning:
//     do { ... } while (popper->next());
// Destroying a popper ends the walk first, so that the page is as it was before.
class FramePopperAbstract {
public:
    FramePopperAbstract();
    virtual ~FramePopperAbstract();

    FramePopperAbstract(const FramePopperAbstract&) = delete;
    FramePopperAbstract& operator=(const FramePopperAbstract&) = delete;

    // Goes to the next frame; false when there is none.
    virtual bool next() = 0;

    void popRemainingFrames();

    // Poppers alive in the process.
    static unsigned numActivePoppers() { return m_numActivePoppers; }

private:
    static unsigned m_numActivePoppers;

    HostLock m_lock;
};

} // namespace corvane::corutiltools
