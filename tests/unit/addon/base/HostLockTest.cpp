// The guard that holds a lock.
#include "addon/base/HostLock.h"

#include "tests/unit/addon/EngineTest.h"

namespace corvane::test {
namespace {

using corutiltools::HostLock;

using HostLockTest = EngineTest;

TEST_F(HostLockTest, holdsOneLock) {
    {
        const HostLock lock;
        EXPECT_EQ(host.session().locks().depth(), 1);
        const HostLock nested;
        EXPECT_EQ(host.session().locks().depth(), 2);
    }
    EXPECT_EQ(host.session().locks().depth(), 0);
}

} // namespace
} // namespace corvane::test
