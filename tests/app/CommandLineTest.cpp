// Wrong usage: one sentence on standard error, exit code 2, nothing done.
#include "tests/app/Program.h"

#include <cstdlib>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using corvane::test::ProgramResult;
using corvane::test::runProgram;
using testing::HasSubstr;

namespace {

void expectUsageError(const std::vector<std::string>& arguments, const std::string& part) {
    const ProgramResult result = runProgram(arguments);
    EXPECT_EQ(result.exitCode, 2) << result.errors;
    EXPECT_THAT(result.errors, HasSubstr(part));
    EXPECT_EQ(result.errors.rfind("corvane: ", 0), 0U) << result.errors;
    EXPECT_EQ(std::count(result.errors.begin(), result.errors.end(), '\n'), 1) << result.errors;
    EXPECT_EQ(result.output, "");
}

TEST(CommandLine, helpGoesToStandardOutput) {
    const ProgramResult result = runProgram({"--help"});
    EXPECT_EQ(result.exitCode, 0);
    for (const char* option : {"--keyframes", "--output", "--macro", "--batch", "--size", "--fps",
                               "--supersample", "--add-on", "--trace", "--version"}) {
        EXPECT_THAT(result.output, HasSubstr(option));
    }
    EXPECT_EQ(result.errors, "");
}

TEST(CommandLine, versionGoesToStandardOutput) {
    const ProgramResult result = runProgram({"--version"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_THAT(result.output, testing::MatchesRegex("corvane [0-9]+\\.[0-9]+\\.[0-9]+\n"));
}

TEST(CommandLine, unknownOption) {
    expectUsageError({"--keyframe", "a"}, "--keyframe");
}

TEST(CommandLine, outputWithoutKnownExtension) {
    const std::string flight = "a.keyframe";
    expectUsageError({"a.vtu", "--keyframes", flight, "--output", "movie.mov"}, "movie.mov");
    expectUsageError({"a.vtu", "--keyframes", flight, "--output", "movie"}, ".mp4");
    expectUsageError({"a.vtu", "--keyframes", flight, "--output", "movie.mp4.part"}, ".mp4");
}

TEST(CommandLine, keyFramesAndOutputBelongTogether) {
    expectUsageError({"a.vtu", "--keyframes", "a.keyframe"}, "--output");
    expectUsageError({"a.vtu", "--output", "a.mp4"}, "--keyframes");
}

TEST(CommandLine, nothingToDoOrToFlyThrough) {
    expectUsageError({"--batch"}, "nothing to do");
    expectUsageError({"a.vtu", "--batch"}, "nothing to do");
    expectUsageError({"--keyframes", "a.keyframe", "--output", "a.mp4"}, "no data");
}

TEST(CommandLine, aWindowNeedsADisplay) {
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        unsetenv(name);
    }
    expectUsageError({}, "no display");
    expectUsageError({"a.vtu", "--macro", "a.mcr"}, "--batch");
}

TEST(CommandLine, numbersOutOfRange) {
    const std::vector<std::string> flight{"a.vtu", "--keyframes", "a", "--output", "a.mp4"};
    const std::vector<std::vector<std::string>> wrong{
        {"--size", "0x180"},  {"--size", "320"},       {"--size", "320x"},
        {"--size", "320x-4"}, {"--size", "40000x100"}, {"--size", "320x180x2"},
        {"--fps", "0"},       {"--fps", "201"},        {"--fps", "fast"},
        {"--fps", "nan"},     {"--supersample", "17"}, {"--supersample", "0"},
    };
    for (const auto& option : wrong) {
        std::vector<std::string> arguments = flight;
        arguments.insert(arguments.end(), option.begin(), option.end());
        SCOPED_TRACE(option[0] + " " + option[1]);
        expectUsageError(arguments, option[0]);
    }
}

} // namespace
