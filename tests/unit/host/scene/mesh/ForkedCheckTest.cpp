// Work that may bring the process down.
#include "host/scene/mesh/ForkedCheck.h"

#include <gtest/gtest.h>

#include <csignal>
#include <ctime>
#include <stdexcept>
#include <unistd.h>

namespace corvane::test {
namespace {

using scene::survives;
using scene::TrialTime;

constexpr TrialTime enough{.cpuSeconds = 60, .patience = std::chrono::minutes(10)};

int timesDone = 0;

int endNormally(const host::TaskInput&) {
    ++timesDone;
    return 0;
}
const host::Task ending("end normally", endNormally);

int endByException(const host::TaskInput&) {
    throw std::runtime_error("no");
}
const host::Task throwing("end by an exception", endByException);

int raiseSignal(const host::TaskInput& input) {
    return std::raise(std::stoi(input.arguments.at(0)));
}
const host::Task crashing("raise a signal", raiseSignal);

int computeForEver(const host::TaskInput&) {
    for (;;) {
        std::clock();
    }
}
const host::Task computing("compute for ever", computeForEver);

int waitForEver(const host::TaskInput&) {
    for (;;) {
        pause();
    }
}
const host::Task waiting("wait for ever", waitForEver);

TEST(ForkedCheck, workThatEndsSurvives) {
    EXPECT_TRUE(survives(ending, {}, enough));
    EXPECT_TRUE(survives(throwing, {}, enough));
}

TEST(ForkedCheck, workThatCrashesDoesNot) {
    EXPECT_FALSE(survives(crashing, {std::to_string(SIGSEGV)}, enough));
    EXPECT_FALSE(survives(crashing, {std::to_string(SIGABRT)}, enough));
}

TEST(ForkedCheck, workThatDoesNotEndDoesNot) {
    EXPECT_FALSE(
        survives(computing, {}, TrialTime{.cpuSeconds = 1, .patience = std::chrono::minutes(10)}));
    EXPECT_FALSE(
        survives(waiting, {}, TrialTime{.cpuSeconds = 60, .patience = std::chrono::seconds(1)}));
}

TEST(ForkedCheck, nothingOfItHappensHere) {
    EXPECT_TRUE(survives(ending, {}, enough));
    EXPECT_EQ(timesDone, 0);
}

} // namespace
} // namespace corvane::test
