// A walk over all frames of the host's page.
#include "addon/engine/FramePopperAbstract.h"

namespace corvane::corutiltools {

unsigned FramePopperAbstract::m_numActivePoppers = 0;

FramePopperAbstract::FramePopperAbstract() {
    ++m_numActivePoppers;
}

FramePopperAbstract::~FramePopperAbstract() {
    --m_numActivePoppers;
}

void FramePopperAbstract::popRemainingFrames() {
    while (next()) {
    }
}

} // namespace corvane::corutiltools
