// A scope that holds the host's lock.
#pragma once

#include "addon/base/AddOnID.h"
#include "hostapi/CorHost.h"

namespace corvane::corutiltools {

// Holds one lock of the host for its lifetime. Locks nest, so guards may too.
class HostLock {
public:
    HostLock() { CorUtilLockStart(AddOnID); }
    ~HostLock() { CorUtilLockFinish(AddOnID); }

    HostLock(const HostLock&) = delete;
    HostLock& operator=(const HostLock&) = delete;
};

} // namespace corvane::corutiltools
