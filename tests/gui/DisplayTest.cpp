// The program before a display that it cannot use: one sentence, and the exit code of wrong usage.
#include "tests/app/Program.h"

#include <algorithm>
#include <cstdlib>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace corvane::test {

namespace {

using ::testing::HasSubstr;

void expectOneSentence(const ProgramResult& result, const std::string& part) {
    EXPECT_EQ(result.exitCode, 2) << result.errors;
    EXPECT_THAT(result.errors, HasSubstr(part));
    EXPECT_EQ(result.errors.rfind("corvane: ", 0), 0U) << result.errors;
    EXPECT_EQ(std::count(result.errors.begin(), result.errors.end(), '\n'), 1) << result.errors;
}

class Display : public ::testing::Test {
protected:
    void SetUp() override {
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
            ::unsetenv(name);
        }
    }
};

TEST_F(Display, nobodyAnswersAt) {
    ::setenv("DISPLAY", ":4711", 1);
    expectOneSentence(runProgram({}), "DISPLAY=:4711");
}

TEST_F(Display, isOfAnUnknownKind) {
    ::setenv("QT_QPA_PLATFORM", "paper", 1);
    expectOneSentence(runProgram({}), "QT_QPA_PLATFORM=paper");
}

TEST_F(Display, isMissing) {
    expectOneSentence(runProgram({}), "no display");
}

} // namespace

} // namespace corvane::test
