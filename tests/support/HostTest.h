// A test with a host, which must be left as clean as it was found.
#pragma once

#include "tests/support/MemoryHost.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace corvane::test {

class HostTest : public ::testing::Test {
protected:
    HostTest() = default;
    explicit HostTest(MemoryHost::Empty empty) : host(empty) {}

    /// Fails for what the test left behind: see MemoryHost::leftBehind.
    void TearDown() override;

    MemoryHost host;
};

/// The same, without a frame and data.
class EmptyHostTest : public HostTest {
protected:
    EmptyHostTest() : HostTest(MemoryHost::Empty{}) {}
};

} // namespace corvane::test
