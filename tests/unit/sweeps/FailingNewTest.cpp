#include "tests/unit/sweeps/FailingNew.h"

#include "host/core/base/Text.h"

#include <gtest/gtest.h>

#include <memory>
#include <new>
#include <string>

namespace corvane::test {
namespace {

// Not by a new expression, which the compiler may leave out together with its delete.
void allocateOnce() {
    ::operator delete(::operator new(1));
}

bool allocationFails() {
    try {
        allocateOnce();
        return false;
    } catch (const std::bad_alloc&) {
        return true;
    }
}

TEST(FailingNewTest, failsAtTheGivenAllocationAlone) {
    const FailingNew failing(3);
    EXPECT_FALSE(allocationFails());
    EXPECT_FALSE(allocationFails());
    EXPECT_FALSE(failing.hasFailed());
    EXPECT_TRUE(allocationFails());
    EXPECT_TRUE(failing.hasFailed());
    EXPECT_FALSE(allocationFails());
}

TEST(FailingNewTest, leavesOutWhatTheTestDoes) {
    const FailingNew failing(1);
    {
        const FailingNew::Pause pause;
        EXPECT_FALSE(allocationFails());
    }
    EXPECT_TRUE(allocationFails());
}

TEST(FailingNewTest, endsWithItsLife) {
    { const FailingNew failing(1, 100); }
    EXPECT_FALSE(allocationFails());
}

// The host is a library of its own, which must not have a new of its own.
TEST(FailingNewTest, reachesTheHost) {
    const std::string text(100, ' ');
    const FailingNew failing(1);
    EXPECT_THROW(host::lowerCase(text), std::bad_alloc);
}

} // namespace
} // namespace corvane::test
