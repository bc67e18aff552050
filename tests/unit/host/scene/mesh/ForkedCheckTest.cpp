// Work that may bring the process down.
#include "host/scene/mesh/ForkedCheck.h"

#include "host/core/base/HostError.h"

#include <gtest/gtest.h>

#include <csignal>
#include <ctime>
#include <stdexcept>

namespace corvane::test {
namespace {

using scene::TrialEnd;
using scene::tryInHelper;
using Kind = TrialEnd::Kind;
using Arguments = std::vector<std::string>;

int timesDone = 0;

int work(const host::TaskInput& input) {
    return scene::tellEnd(input, [](const Arguments& arguments) {
        ++timesDone;
        if (!arguments.empty()) {
            throw host::HostError(arguments.front());
        }
    });
}
const host::Task working("end normally or by an exception", work);

int endByAnyException(const host::TaskInput& input) {
    return scene::tellEnd(input, [](const Arguments&) { throw std::runtime_error("no"); });
}
const host::Task throwing("end by an exception that says nothing", endByAnyException);

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

TEST(ForkedCheck, workThatEndsIsDone) {
    EXPECT_EQ(tryInHelper(working, {}, {}).kind, Kind::Done);
}

TEST(ForkedCheck, whatWorkThrowsIsTold) {
    const TrialEnd end = tryInHelper(working, {"There is a hole in it."}, {});
    EXPECT_EQ(end.kind, Kind::Refused);
    EXPECT_EQ(end.sentence, "There is a hole in it.");
    EXPECT_EQ(tryInHelper(throwing, {}, {}).kind, Kind::Refused);
    EXPECT_EQ(tryInHelper(throwing, {}, {}).sentence, "");
}

TEST(ForkedCheck, longSentencesAreCut) {
    const TrialEnd end = tryInHelper(working, {std::string(100'000, 'a')}, {});
    EXPECT_EQ(end.kind, Kind::Refused);
    EXPECT_EQ(end.sentence.substr(0, 3), "aaa");
}

TEST(ForkedCheck, workThatCrashesIsTold) {
    EXPECT_EQ(tryInHelper(crashing, {std::to_string(SIGSEGV)}, {}).kind, Kind::Crashed);
    EXPECT_EQ(tryInHelper(crashing, {std::to_string(SIGABRT)}, {}).kind, Kind::Crashed);
}

TEST(ForkedCheck, workThatDoesNotEndIsEnded) {
    EXPECT_EQ(tryInHelper(computing, {}, {.cpuSeconds = 1}).kind, Kind::Endless);
}

TEST(ForkedCheck, nothingOfItHappensHere) {
    EXPECT_EQ(tryInHelper(working, {}, {}).kind, Kind::Done);
    EXPECT_EQ(timesDone, 0);
}

} // namespace
} // namespace corvane::test
