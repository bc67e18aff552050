// The operations, called from C.
#include "tests/support/HostTest.h"

extern "C" int corvaneCallsFromC(void);

namespace corvane::test {
namespace {

class CallsFromCTest : public HostTest {};

TEST_F(CallsFromCTest, theOperationsWorkFromC) {
    EXPECT_EQ(corvaneCallsFromC(), 0);
    EXPECT_EQ(host.renderer().renders(), 1U);
}

} // namespace
} // namespace corvane::test
