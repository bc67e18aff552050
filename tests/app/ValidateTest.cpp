// "corvane validate" as authors of add-ons use it.
#include "tests/app/Program.h"
#include "tests/support/Folders.h"
#include "tests/support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>

using namespace corvane::test;
using testing::ContainsRegex;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

TEST(Validate, isContentWithTheAddOnThatComesWithTheProgram) {
    const ProgramResult result = runProgram({"validate", builtAddOn()});
    EXPECT_EQ(result.exitCode, 0) << result.output;
    EXPECT_THAT(result.output, Not(HasSubstr(": broken: ")));
    EXPECT_THAT(result.output, HasSubstr("locks: kept: "));
    EXPECT_THAT(result.output, HasSubstr(": all rules kept; "));
    EXPECT_THAT(result.output, ContainsRegex("[1-9][0-9][0-9] failing calls and [1-9][0-9]"));
    EXPECT_THAT(result.errors, IsEmpty());
}

TEST(Validate, namesTheRulesThatABadAddOnBreaks) {
    const ProgramResult result =
        runProgram({"validate", builtFile("tests/libraries/BadAddOn.so"), "--cpu-seconds", "5"});
    EXPECT_EQ(result.exitCode, 1);
    for (const std::string line :
         {"locks: broken: the entry point InitCorAddOn113: ",
          "locks: broken: choosing \"Animate > Leave a Lock\": ",
          "drawing: broken: choosing \"Animate > Leave Drawing Suspended\": ",
          "threads: broken: choosing \"Animate > Call from a Thread\": ",
          "exceptions: broken: choosing \"Animate > Throw\": ", "survival: kept: ",
          "progress: kept: "}) {
        EXPECT_THAT(result.output, HasSubstr(line));
    }
}

TEST(Validate, needsALibrary) {
    EXPECT_EQ(runProgram({"validate"}).exitCode, 2);
    EXPECT_EQ(runProgram({"validate", ""}).exitCode, 2);
    EXPECT_EQ(runProgram({"validate", builtAddOn(), "--cpu-seconds", "0"}).exitCode, 2);
    EXPECT_EQ(runProgram({"validate", builtAddOn(), "--batch"}).exitCode, 2);
    const ProgramResult help = runProgram({"validate", "--help"});
    EXPECT_EQ(help.exitCode, 0);
    EXPECT_THAT(help.output, HasSubstr("--cpu-seconds"));
}

TEST(Validate, canBeStopped) {
    const TempFolder folder;
    const std::string hanging = folder.file("hang.so");
    std::filesystem::create_symlink(builtFile("tests/libraries/RuleBreaker.so"), hanging);
    Program program({"validate", hanging, "--cpu-seconds", "3600"});
    // Standard output is for the verdict, whatever an add-on prints.
    ASSERT_TRUE(program.waitForError("computing"));
    program.signal(SIGINT);
    const ProgramResult result = program.finish();
    EXPECT_EQ(result.exitCode, 130);
    EXPECT_THAT(result.errors, HasSubstr("Stopped"));
    EXPECT_THAT(result.output, IsEmpty());
}

TEST(Validate, saysWhyALibraryIsNoAddOn) {
    const TempFolder folder;
    const ProgramResult result = runProgram({"validate", folder.file("none.so")});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.output, HasSubstr("loading: broken: the library: "));
    EXPECT_THAT(result.output, HasSubstr("none.so"));
}

} // namespace
