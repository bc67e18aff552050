// Work that may bring the process down.
#include "host/scene/mesh/ForkedCheck.h"

#include <gtest/gtest.h>

#include <csignal>
#include <stdexcept>
#include <unistd.h>

namespace corvane::test {

using scene::survives;

TEST(ForkedCheck, workThatEndsSurvives) {
    EXPECT_TRUE(survives([] {}, 60));
    EXPECT_TRUE(survives([] { throw std::runtime_error("no"); }, 60));
}

TEST(ForkedCheck, workThatCrashesDoesNot) {
    EXPECT_FALSE(survives([] { std::raise(SIGSEGV); }, 60));
    EXPECT_FALSE(survives([] { std::raise(SIGABRT); }, 60));
}

TEST(ForkedCheck, workThatDoesNotEndDoesNot) {
    EXPECT_FALSE(survives(
        [] {
            for (;;) {
                pause();
            }
        },
        1));
}

TEST(ForkedCheck, nothingOfItHappensHere) {
    int done = 0;
    EXPECT_TRUE(survives([&] { ++done; }, 60));
    EXPECT_EQ(done, 0);
}

} // namespace corvane::test
