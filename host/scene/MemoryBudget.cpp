#include "host/scene/MemoryBudget.h"

#include <unistd.h>

#include <algorithm>

namespace corvane::scene {

std::size_t defaultMemoryBudget() {
    const auto pages = static_cast<std::size_t>(std::max(0L, sysconf(_SC_PHYS_PAGES)));
    const auto pageSize = static_cast<std::size_t>(std::max(0L, sysconf(_SC_PAGESIZE)));
    return pages * pageSize / 4;
}

} // namespace corvane::scene
