// A scope in which the host draws nothing.
#pragma once

#include "addon/base/HostLock.h"

namespace corvane::corutiltools {

// Holds one host lock and suspends drawing for its lifetime. Guards nest. A host failing at the end
// of the scope ends the program, as a destructor must not throw.
class SuspendGraphics {
public:
    SuspendGraphics();
    virtual ~SuspendGraphics();

    SuspendGraphics(const SuspendGraphics&) = delete;
    SuspendGraphics& operator=(const SuspendGraphics&) = delete;

private:
    HostLock m_lock;
};

} // namespace corvane::corutiltools
