// The default limit for cached data.
#pragma once

#include <cstddef>

namespace corvane::scene {

/// A quarter of this machine's memory, in bytes.
std::size_t defaultMemoryBudget();

} // namespace corvane::scene
