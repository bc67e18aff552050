// Helpers that do not end by themselves.
#include "host/core/process/Helper.h"
#include "host/core/process/ProcessServer.h"
#include "tests/unit/host/core/process/HelperTasks.h"

#include <gtest/gtest.h>

#include <csignal>
#include <sys/wait.h>
#include <thread>

namespace corvane::test {
namespace {

using host::Helper;
using namespace std::chrono_literals;

class HelperEndTest : public testing::Test {
protected:
    host::ProcessServer server;
};

TEST_F(HelperEndTest, aCrashIsToldByItsSignal) {
    for (const int signal : {SIGSEGV, SIGABRT, SIGTERM}) {
        const host::HelperEnd end = Helper(raiseSignal, {std::to_string(signal)}).wait();
        EXPECT_FALSE(end.isExit());
        EXPECT_EQ(end.exitCode, -1);
        EXPECT_EQ(end.signal, signal);
    }
}

TEST_F(HelperEndTest, canBeWaitedForWithPatience) {
    Helper helper(waitForEver);
    EXPECT_FALSE(helper.waitFor(0ms));
    EXPECT_FALSE(helper.waitFor(20ms));
    helper.terminate();
    const auto end = helper.waitFor(10min);
    ASSERT_TRUE(end);
    EXPECT_EQ(end->signal, SIGKILL);
    EXPECT_EQ(helper.waitFor(0ms)->signal, SIGKILL);
    EXPECT_EQ(helper.wait().signal, SIGKILL);
}

TEST_F(HelperEndTest, canBeAskedForByAnotherThread) {
    Helper helper(waitForEver);
    std::thread other([&helper] { helper.terminate(); });
    EXPECT_EQ(helper.wait().signal, SIGKILL);
    other.join();
}

TEST_F(HelperEndTest, askingAfterItIsTooLate) {
    Helper helper(answerNumber, {"3"});
    ASSERT_TRUE(helper.waitFor(10min));
    helper.terminate();
    EXPECT_EQ(helper.wait().exitCode, 3);
}

TEST_F(HelperEndTest, comesWhenComputingTakesTooLong) {
    Helper helper(computeForEver, {}, {.cpuSeconds = 1});
    EXPECT_EQ(helper.wait().signal, SIGXCPU);
}

TEST_F(HelperEndTest, memoryIsLimited) {
    constexpr std::uint64_t limit = 64 << 20;
    const auto exitCode = [](std::uint64_t bytes, std::uint64_t most) {
        return Helper(takeMemory, {std::to_string(bytes)}, {.memoryBytes = most}).wait().exitCode;
    };
    EXPECT_EQ(exitCode(limit / 2, limit), 0);
    EXPECT_EQ(exitCode(limit * 2, limit), 1);
    EXPECT_EQ(exitCode(limit * 2, 0), 0);
}

TEST_F(HelperEndTest, othersGoOn) {
    Helper first(waitForEver);
    Helper second(waitForEver);
    first.terminate();
    EXPECT_EQ(first.wait().signal, SIGKILL);
    EXPECT_FALSE(second.waitFor(0ms));
    second.terminate();
    EXPECT_EQ(second.wait().signal, SIGKILL);
}

} // namespace
} // namespace corvane::test
