// Each rule, with an add-on that breaks it and no other one.
#include "host/validate/Validation.h"

#include "host/validate/Report.h"
#include "tests/support/Folders.h"
#include "tests/support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

using namespace corvane::test;
using namespace corvane::validate;
using testing::Each;
using testing::Field;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

struct Breaker {
    const char* name;
    Rule rule;
    const char* where; ///< a part of it
    const char* what;
};

void PrintTo(const Breaker& breaker, std::ostream* stream) {
    *stream << breaker.name;
}

class ValidationTest : public testing::TestWithParam<Breaker> {
protected:
    /// RuleBreaker.cpp under another name.
    std::string breakerCalled(const std::string& name) const {
        const std::string link = folder.file(name + ".so");
        std::filesystem::create_symlink(builtFile("tests/libraries/RuleBreaker.so"), link);
        return link;
    }
    Verdict verdictOn(const std::string& name) const {
        constexpr unsigned cpuSeconds = 1;
        return validate(breakerCalled(name), cpuSeconds);
    }

    const TempFolder folder;
};

TEST_P(ValidationTest, findsTheRuleThatIsBroken) {
    const Breaker& breaker = GetParam();
    const Verdict verdict = verdictOn(breaker.name);
    SCOPED_TRACE(reportOf(breaker.name, verdict));
    EXPECT_THAT(verdict.findings, Each(Field(&Finding::rule, breaker.rule)));
    const auto isExpected = [&](const Finding& finding) {
        return finding.action.text().find(breaker.where) != std::string::npos &&
               finding.what.find(breaker.what) != std::string::npos;
    };
    EXPECT_TRUE(std::any_of(verdict.findings.begin(), verdict.findings.end(), isExpected));
    EXPECT_FALSE(isKept(verdict));
}

INSTANTIATE_TEST_SUITE_P(
    Rules, ValidationTest,
    testing::Values(
        Breaker{"loading", Rule::Loading, "InitCorAddOn113", "has not registered itself"},
        Breaker{"crash", Rule::Survival, "pressing OK of the dialog \"Options\"", "crashed"},
        Breaker{"crash-in-entry", Rule::Survival, "InitCorAddOn113", "Segmentation fault"},
        Breaker{"crash-at-end", Rule::Survival, "StateChange_HostQuit", "crashed"},
        Breaker{"crash-on-failure", Rule::Survival, "(CorUtilStringAlloc)", "crashed"},
        Breaker{"exit", Rule::Survival, "choosing \"Item\"", "exit() was called"},
        Breaker{"hang", Rule::Survival, "pressing \"Press\"", "within 1 seconds of computing"},
        Breaker{"locks", Rule::Locks, "switching \"Switch\"", "locks are not balanced"},
        Breaker{"locks-on-failure", Rule::Locks, "CorUtilRedraw, of the host fails",
                "locks are not balanced"},
        Breaker{"drawing", Rule::Drawing, "of control 7", "suspended drawing is not balanced"},
        Breaker{"threads", Rule::Threads, "pressing \"Press\"", "another thread"},
        Breaker{"memory-twice", Rule::Memory, "typing", "freed before"},
        Breaker{"memory-never", Rule::Memory, "choosing item 2", "not given back"},
        Breaker{"exceptions", Rule::Exceptions, "the state change", "row 7 of 5"},
        Breaker{"exceptions-in-macro", Rule::Exceptions, "EXTCOMMAND", "row 7 of 5"},
        Breaker{"progress", Rule::Progress, "stepping up", "still open"},
        Breaker{"stopping", Rule::Stopping, "when the user stops it at check 1", "goes on"},
        Breaker{"movies", Rule::Movies, "pressing Help", "still being recorded"},
        Breaker{"dialogs", Rule::Dialogs, "cancelling the dialog \"Options\"", "stays"},
        Breaker{"arguments", Rule::Arguments, "pressing \"Press\"", "message is NULL"}),
    [](const auto& test) {
        std::string name = test.param.name;
        std::replace(name.begin(), name.end(), '-', '_');
        return name;
    });

TEST_F(ValidationTest, isContentWithAnAddOnThatKeepsAllRules) {
    const Verdict verdict = verdictOn("good");
    EXPECT_THAT(verdict.findings, IsEmpty()) << reportOf("good", verdict);
    EXPECT_TRUE(isKept(verdict));
    EXPECT_GT(verdict.counts.actions, 50U);
    EXPECT_GT(verdict.counts.failures, 10U);
    EXPECT_GE(verdict.counts.stops, 48U);
    EXPECT_FALSE(verdict.gaveUp);
}

TEST_F(ValidationTest, tellsWhyALibraryIsNoAddOn) {
    const Verdict verdict = validate(folder.write("text.so", "no library"), 1);
    ASSERT_EQ(verdict.findings.size(), 1U);
    EXPECT_EQ(verdict.findings[0].rule, Rule::Loading);
    EXPECT_THAT(verdict.findings[0].what, HasSubstr("text.so"));
}

TEST_F(ValidationTest, leavesNothingBehind) {
    const auto scratch = [] {
        std::size_t count = 0;
        for (const auto& entry :
             std::filesystem::directory_iterator(std::filesystem::temp_directory_path())) {
            count += entry.path().filename().string().starts_with("corvane-validate-") ? 1 : 0;
        }
        return count;
    };
    const std::size_t before = scratch();
    verdictOn("movies");
    EXPECT_EQ(scratch(), before);
}

} // namespace
