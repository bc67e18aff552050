// An add-on that breaks the rules beside Key Frame Animation: the host lives, says who broke which
// rule, and flies as ever.
#include "tests/app/Program.h"
#include "tests/app/WakeFlight.h"
#include "tests/support/Folders.h"
#include "tests/support/TempFolder.h"
#include "tests/unit/host/movie/DecodedMovie.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace corvane::test;
using corvane::movie_test::DecodedMovie;
using testing::HasSubstr;
using testing::Not;

namespace {

const std::string badAddOn = builtFile("tests/libraries/BadAddOn.so");

std::string commands(const std::vector<std::string>& deeds) {
    std::string macro = "$!READDATA \"" + exampleFile("wake/wake.pvd") + "\"\n";
    for (const std::string& deed : deeds) {
        macro += "$!EXTCOMMAND \"Bad Add-On\" \"" + deed + "\"\n";
    }
    return macro;
}

class BadAddOn : public testing::Test {
protected:
    ProgramResult perform(const std::vector<std::string>& deeds,
                          const std::vector<std::string>& more = {"--batch"}) {
        folder.write("bad.mcr", commands(deeds));
        std::vector<std::string> arguments = more;
        arguments.insert(arguments.end(), {"--add-on", badAddOn, "--macro", folder.file("bad.mcr"),
                                           "--trace", folder.file("calls")});
        return runProgram(arguments);
    }
    std::string trace() const { return folder.read("calls"); }
    std::string misuse(const std::string& what) const { return "misuse: BadAddOn.so: " + what; }

    const TempFolder folder;
};

TEST_F(BadAddOn, doesNotChangeTheFlight) {
    ASSERT_EQ(runProgram(shortRun(folder, folder.file("good.mp4"))).exitCode, 0);
    const ProgramResult result =
        perform({"leave a lock", "give back a lock of nobody", "leave drawing suspended",
                 "free a string twice", "free a string of its own", "free a list twice",
                 "free a set twice", "call from a thread", "use an id of nobody", "listen badly"},
                shortRun(folder, folder.file("bad.mp4")));
    ASSERT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_THAT(result.errors, HasSubstr("the listener has no ears"));
    EXPECT_TRUE(DecodedMovie(folder.file("bad.mp4")).pictures() ==
                DecodedMovie(folder.file("good.mp4")).pictures());
}

TEST_F(BadAddOn, isNamedForItsLocks) {
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

TEST_F(BadAddOn, isNamedForItsMemory) {
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

TEST_F(BadAddOn, getsNothingDoneOnItsOwnThreads) {
    const ProgramResult result = perform({"call from a thread"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    for (const std::string operation :
         {"CorUtilStringAlloc", "CorUtilFrameGetCount", "CorUtilLockStart", "CorUtilRedraw"}) {
        EXPECT_THAT(trace(), HasSubstr(misuse(operation + ": called on another thread")));
    }
    EXPECT_THAT(trace(), Not(HasSubstr("\nCorUtilRedraw")));
}

TEST_F(BadAddOn, stopsTheMacroWithWhatItThrew) {
    const ProgramResult result = perform({"throw an exception", "leave a lock"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.errors, HasSubstr("bad.mcr:2: "));
    EXPECT_THAT(result.errors, HasSubstr("row 7 of 5"));
    EXPECT_THAT(trace(),
                HasSubstr("exception: the command \"Bad Add-On\" of BadAddOn.so: row 7 of 5"));
    EXPECT_EQ(perform({"throw a number"}).exitCode, 1);
}

TEST_F(BadAddOn, mayHandOverTextsThatAreNotTheHosts) {
    const ProgramResult result = perform({"hand over a message of its own"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.errors, HasSubstr("This text is not the host's to free."));
    EXPECT_THAT(trace(),
                HasSubstr(misuse("CorUtilStringDealloc: freed before, or not from the host")));
}

} // namespace
