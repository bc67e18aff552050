// Memory that add-ons get from the host, and give back.
#pragma once

#include "host/api/Operation.h"

#include <cstddef>

namespace corvane::host {

/// Zeroed; null without memory.
void* allocateForAddOn(std::size_t count, std::size_t size);

/// Frees what came from there. Anything else, such as what was freed before, is told to the trace
/// and left alone. Null is nothing.
void freeForAddOn(const Operation& operation, void* block);

} // namespace corvane::host
