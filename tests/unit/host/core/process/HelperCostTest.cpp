// What a helper costs.
#include "host/core/process/Helper.h"
#include "host/core/process/ProcessServer.h"
#include "tests/unit/host/core/process/HelperTasks.h"

#include <gtest/gtest.h>

#include <chrono>
#include <iostream>

namespace corvane::test {
namespace {

TEST(HelperCost, isTold) {
    const host::ProcessServer server;
    constexpr int count = 200;
    const auto start = std::chrono::steady_clock::now();
    for (int n = 0; n < count; ++n) {
        ASSERT_EQ(host::Helper(answerNumber, {"0"}).wait().exitCode, 0);
    }
    const std::chrono::duration<double, std::micro> time = std::chrono::steady_clock::now() - start;
    std::cout << "a helper takes " << time.count() / count << " microseconds\n";
}

} // namespace
} // namespace corvane::test
