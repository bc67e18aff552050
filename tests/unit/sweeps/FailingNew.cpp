#include "tests/unit/sweeps/FailingNew.h"

#include <cstdlib>
#include <new>
#include <utility>

namespace corvane::test {

namespace {

struct Script {
    bool isArmed = false;
    std::size_t before = 0;   // allocations that still go well
    std::size_t failures = 0; // that are still to come
    bool hasFailed = false;
};

Script script;

bool mustFail() {
    if (!script.isArmed) {
        return false;
    }
    if (script.before > 0) {
        --script.before;
        return false;
    }
    if (script.failures == 0) {
        return false;
    }
    --script.failures;
    script.hasFailed = true;
    return true;
}

// Null where memory is short.
void* allocate(std::size_t size) {
    return mustFail() ? nullptr : std::malloc(size > 0 ? size : 1);
}

void* allocateOrThrow(std::size_t size) {
    void* const block = allocate(size);
    if (block == nullptr) {
        throw std::bad_alloc();
    }
    return block;
}

} // namespace

FailingNew::FailingNew(std::size_t n, std::size_t count) {
    script = {true, n - 1, count, false};
}

FailingNew::~FailingNew() {
    script.isArmed = false;
}

bool FailingNew::hasFailed() const {
    return script.hasFailed;
}

FailingNew::Pause::Pause() : m_wasArmed(std::exchange(script.isArmed, false)) {}

FailingNew::Pause::~Pause() {
    script.isArmed = m_wasArmed;
}

} // namespace corvane::test

// All of them, so that none frees what another one of the sanitizer's has given.
void* operator new(std::size_t size) {
    return corvane::test::allocateOrThrow(size);
}

void* operator new[](std::size_t size) {
    return corvane::test::allocateOrThrow(size);
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return corvane::test::allocate(size);
}

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
    return corvane::test::allocate(size);
}

void operator delete(void* block) noexcept {
    std::free(block);
}

void operator delete[](void* block) noexcept {
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept {
    std::free(block);
}

void operator delete[](void* block, std::size_t) noexcept {
    std::free(block);
}

void operator delete(void* block, const std::nothrow_t&) noexcept {
    std::free(block);
}

void operator delete[](void* block, const std::nothrow_t&) noexcept {
    std::free(block);
}
