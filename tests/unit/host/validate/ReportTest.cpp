// The lines that the author of an add-on reads.
#include "host/validate/Report.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

using namespace corvane::validate;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

std::vector<std::string> linesOf(const std::string& text) {
    std::istringstream stream(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

TEST(Report, hasALineForEachRuleThatWasKept) {
    Verdict verdict;
    verdict.counts = {12, 1, 0};
    EXPECT_TRUE(isKept(verdict));
    const std::vector<std::string> lines = linesOf(reportOf("libX.so", verdict));
    ASSERT_EQ(lines.size(), ruleCount + 1);
    for (std::size_t i = 0; i < ruleCount; ++i) {
        EXPECT_THAT(lines[i], StartsWith(std::string(allRules().at(i).name) + ": kept: "));
    }
    EXPECT_EQ(lines.back(), "libX.so: all rules kept; 12 actions, 1 failing call and 0 stops were "
                            "tried.");
}

TEST(Report, tellsWhereARuleWasBrokenAndWhatToDo) {
    Verdict verdict;
    verdict.findings = {
        {Rule::Drawing, {"pressing \"Go\"", ""}, "suspended drawing is not balanced"}};
    EXPECT_FALSE(isKept(verdict));
    const std::string report = reportOf("libX.so", verdict);
    EXPECT_THAT(report, HasSubstr("\ndrawing: broken: pressing \"Go\": suspended drawing is not "
                                  "balanced. Let CorUtilDrawGraphics(TRUE) follow"));
    EXPECT_THAT(report, Not(HasSubstr("drawing: kept")));
    EXPECT_THAT(report, HasSubstr("libX.so: 1 rule broken; "));
}

TEST(Report, doesNotRepeatItselfForEver) {
    Verdict verdict;
    for (int i = 0; i < 20; ++i) {
        const std::string where = "pressing button " + std::to_string(i);
        verdict.findings.push_back({Rule::Locks, {where, ""}, "locks are not balanced"});
        verdict.findings.push_back({Rule::Locks, {where, "failing"}, "locks are not balanced"});
    }
    verdict.gaveUp = true;
    const std::string report = reportOf("libX.so", verdict);
    EXPECT_EQ(linesOf(report).size(), ruleCount - 1 + 6 + 1);
    EXPECT_THAT(report, HasSubstr("locks: broken: 15 more places of that kind.\n"));
    EXPECT_THAT(report, EndsWith("the add-on ended the process too often.\n"));
}

} // namespace
