// Memory that add-ons get from the host, and give back.
#pragma once

#include "host/api/TracedCall.h"

#include <cstddef>
#include <utility>

namespace corvane::host {

/// Zeroed; null without memory.
void* allocateForAddOn(std::size_t count, std::size_t size);

/// Frees what came from there. Anything else, such as what was freed before, is told to the trace
/// and left alone. Null is nothing.
void freeForAddOn(const Operation& operation, void* block);

/// The operations that free: sets *block to null, too.
template <class T>
void takeBack(const Operation& operation, T** block) {
    if (block && mayProceedUntraced(operation, false)) {
        freeForAddOn(operation, std::exchange(*block, nullptr));
    }
}

} // namespace corvane::host
