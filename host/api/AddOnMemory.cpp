// Allocates for add-ons, and remembers what they have.
#include "host/api/AddOnMemory.h"

#include "host/api/AllocationRegistry.h"

#include <cstdlib>
#include <memory>
#include <new>

namespace corvane::host {

namespace {

/// Never destroyed: add-ons free what they have when the process ends, too.
AllocationRegistry<void>& blocks() {
    static auto* given = new AllocationRegistry<void>;
    return *given;
}

} // namespace

std::atomic<std::size_t>& heldThings() {
    static std::atomic<std::size_t> count{0};
    return count;
}

void* allocateForAddOn(std::size_t count, std::size_t size) {
    std::unique_ptr<void, decltype(&std::free)> block(std::calloc(count, size), &std::free);
    try {
        if (block) {
            blocks().add(block.get());
        }
        return block.release();
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

void freeForAddOn(const Operation& operation, void* block) {
    blocks().takeBack(operation, block, &std::free);
}

} // namespace corvane::host
