// An event loop that counts how often it was asked for idle time.
#pragma once

#include "host/core/ports/Ports.h"

#include <cstddef>

namespace corvane::memory {

class MemoryIdleTimer : public host::IdleTimer {
public:
    void requestIdle() override { ++m_requests; }
    std::size_t requests() const { return m_requests; }

private:
    std::size_t m_requests = 0;
};

} // namespace corvane::memory
