// An add-on that breaks the rules: the host lives, and says who broke which rule.
#include "tests/app/BadAddOnTest.h"

#include <gmock/gmock.h>

using namespace corvane::test;
using testing::HasSubstr;
using testing::Not;

namespace {

TEST_F(BadAddOnTest, isNamedForItsLocks) {
    ASSERT_EQ(perform({"leave a lock", "give back a lock of nobody", "leave drawing suspended",
                       "use an id of nobody"})
                  .exitCode,
              0);
    EXPECT_THAT(trace(), HasSubstr("misuse: InitCorAddOn113 of BadAddOn.so: locks are not balanced "
                                   "(0 before, 1 after)"));
    EXPECT_THAT(trace(), HasSubstr("misuse: the command \"Bad Add-On\" of BadAddOn.so: locks are "
                                   "not balanced (0 before, 2 after)"));
    EXPECT_THAT(trace(), HasSubstr(misuse("CorUtilLockFinish: no such lock is held")));
    EXPECT_THAT(trace(), HasSubstr(misuse("CorUtilLockStart: unknown add-on")));
    EXPECT_THAT(trace(), HasSubstr("suspended drawing is not balanced (0 before, 1 after)"));
}

TEST_F(BadAddOnTest, isNamedForItsMemory) {
    ASSERT_EQ(perform({"free a string twice", "free a string of its own", "free a list twice",
                       "free a set twice"})
                  .exitCode,
              0);
    const std::string freed = "freed before, or not from the host; left alone";
    EXPECT_THAT(trace(), HasSubstr(misuse("CorUtilStringDealloc: " + freed)));
    EXPECT_THAT(trace(), HasSubstr(misuse("CorUtilArgListDealloc: " + freed)));
    EXPECT_THAT(trace(), HasSubstr(misuse("CorUtilSetDealloc: " + freed)));
    EXPECT_THAT(trace(), HasSubstr(misuse("CorUtilArgListAppendInt: the list was freed before")));
    EXPECT_THAT(trace(), HasSubstr(misuse("CorUtilStyleSet: args is no list")));
    EXPECT_THAT(trace(), HasSubstr(misuse("CorUtilSetGetNextMember: the set was freed before")));
}

TEST_F(BadAddOnTest, getsNothingDoneOnItsOwnThreads) {
    const ProgramResult result = perform({"call from a thread"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    for (const std::string operation :
         {"CorUtilStringAlloc", "CorUtilFrameGetCount", "CorUtilLockStart", "CorUtilRedraw"}) {
        EXPECT_THAT(trace(), HasSubstr(misuse(operation + ": called on another thread")));
    }
    EXPECT_THAT(trace(), Not(HasSubstr("\nCorUtilRedraw")));
}

TEST_F(BadAddOnTest, stopsTheMacroWithWhatItThrew) {
    const ProgramResult result = perform({"throw an exception", "leave a lock"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.errors, HasSubstr("bad.mcr:2: "));
    EXPECT_THAT(result.errors, HasSubstr("row 7 of 5"));
    EXPECT_THAT(trace(),
                HasSubstr("exception: the command \"Bad Add-On\" of BadAddOn.so: row 7 of 5"));
    EXPECT_EQ(perform({"throw a number"}).exitCode, 1);
}

TEST_F(BadAddOnTest, doesNotEndTheRunAsIfAllWereDone) {
    const ProgramResult result = perform({"exit"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.errors, HasSubstr("corvane: An add-on ended the program: exit() was called "
                                         "in the command \"Bad Add-On\" of BadAddOn.so"));
}

TEST_F(BadAddOnTest, thatFailsToStartDoesNotEndTheRunButCounts) {
    const std::string throwing = builtFile("tests/libraries/Throwing.so");
    folder.write("picture.mcr", "$!READDATA \"" + exampleFile("wake/body.vtp") +
                                    "\"\n$!PICTURE \"" + folder.file("made.png") + "\"\n");
    const ProgramResult result =
        runProgram({"--batch", "--add-on", throwing, "--macro", folder.file("picture.mcr")});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.errors, HasSubstr("failed when it started"));
    EXPECT_TRUE(folder.has("made.png"));
}

TEST_F(BadAddOnTest, mayHandOverTextsThatAreNotTheHosts) {
    const ProgramResult result = perform({"hand over a message of its own"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.errors, HasSubstr("This text is not the host's to free."));
    EXPECT_THAT(trace(),
                HasSubstr(misuse("CorUtilStringDealloc: freed before, or not from the host")));
}

} // namespace
