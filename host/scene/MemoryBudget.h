// How much memory data may take.
#pragma once

#include <cstddef>

namespace corvane::scene {

/// A quarter of this machine's memory, in bytes.
std::size_t defaultMemoryBudget();

} // namespace corvane::scene
