// Which rule a misuse breaks.
#include "host/validate/Rule.h"

#include <gtest/gtest.h>

using namespace corvane::validate;

namespace {

TEST(Rule, isFoundByItsNumber) {
    for (std::size_t i = 0; i < ruleCount; ++i) {
        EXPECT_EQ(static_cast<std::size_t>(allRules().at(i).rule), i);
        EXPECT_EQ(&textOf(allRules().at(i).rule), &allRules().at(i));
    }
}

TEST(Rule, thatAMisuseBreaksFollowsFromTheTrace) {
    EXPECT_EQ(ruleBrokenBy("idle work of a.so: locks are not balanced (0 before, 1 after)"),
              Rule::Locks);
    EXPECT_EQ(ruleBrokenBy("a.so: CorUtilLockFinish: no such lock is held"), Rule::Locks);
    EXPECT_EQ(ruleBrokenBy("a.so: CorUtilDrawGraphics: drawing is not suspended"), Rule::Drawing);
    EXPECT_EQ(ruleBrokenBy("a.so: CorUtilRedraw: called on another thread than the user "
                           "interface's; ignored"),
              Rule::Threads);
    EXPECT_EQ(ruleBrokenBy("a.so: CorUtilStringDealloc: freed before, or not from the host; left "
                           "alone"),
              Rule::Memory);
    EXPECT_EQ(ruleBrokenBy("a.so: CorUtilStatusFinishPercentDone: no display is open"),
              Rule::Progress);
    EXPECT_EQ(ruleBrokenBy("a.so: CorUtilExportFinish: nothing is recorded"), Rule::Movies);
    EXPECT_EQ(ruleBrokenBy("a.so: CorUtilHelp: page is NULL"), Rule::Arguments);
}

} // namespace
