// A test with a host, which must be left as clean as it was found.
#include "tests/support/HostTest.h"

namespace corvane::test {

void HostTest::TearDown() {
    EXPECT_THAT(host.leftBehind(), ::testing::IsEmpty());
}

} // namespace corvane::test
