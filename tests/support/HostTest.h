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
    explicit HostTest(MemoryHost::Windowless windowless) : host(windowless) {}

    /// Fails for what the test left behind: see MemoryHost::leftBehind.
    void TearDown() override;

    MemoryHost host;
};

/// The same, without a frame and data.
class EmptyHostTest : public HostTest {
protected:
    EmptyHostTest() : HostTest(MemoryHost::Empty{}) {}
};

/// The same, without windows.
class WindowlessHostTest : public HostTest {
protected:
    WindowlessHostTest() : HostTest(MemoryHost::Windowless{}) {}
};

} // namespace corvane::test
