// The size of the string in which the host is handed an error. A program of its own, since it puts
// its own operation in place of the host's.
#include "addon/macro/MacroManager.h"
#include "tests/support/HostTest.h"
#include "tests/unit/addon/RegisteredAddOn.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

namespace {

std::vector<long> lengths;
std::size_t callsBefore = 0;
corvane::test::MemoryHost* hostOfTest = nullptr;

} // namespace

char* CorUtilStringAlloc(long maxLength) {
    lengths.push_back(maxLength);
    callsBefore = hostOfTest->calls().size();
    return static_cast<char*>(std::calloc(static_cast<std::size_t>(maxLength) + 1, 1));
}

namespace {

using namespace corvane::test;
using namespace corvane::corutiltools;
using testing::ElementsAre;

class ErrorStringTest : public HostTest {
protected:
    ErrorStringTest() {
        hostOfTest = &host;
        host.clearCalls();
    }

    const RegisteredAddOn registration;
};

TEST_F(ErrorStringTest, isLongerThanTheMessageByTwentyNine) {
    char command[] = "Fly";
    char* message = nullptr;
    EXPECT_EQ(MacroManager::corvaneCallback(command, &message), FALSE);
    EXPECT_STREQ(message, "Key Frame Animation error:\nUnknown macro command: Fly");
    std::free(message);
    const std::string own = "Unknown macro command: Fly";
    EXPECT_THAT(lengths, ElementsAre(static_cast<long>(own.size()) + 29));
    // It is asked for between taking and giving back the lock.
    EXPECT_EQ(callsBefore, 1u);
    EXPECT_THAT(host.calls(), ElementsAre(lockStart, lockFinish));
}

} // namespace
