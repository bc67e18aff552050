// The rules of the contract that an add-on is held to.
#pragma once

#include <array>
#include <string>

namespace corvane::validate {

enum class Rule {
    Loading,
    Survival,
    Locks,
    Drawing,
    Threads,
    Memory,
    Exceptions,
    Progress,
    Stopping,
    Movies,
    Dialogs,
    Arguments
};

struct RuleText {
    Rule rule;
    const char* name;   ///< one word
    const char* text;   ///< what an add-on that keeps the rule does
    const char* remedy; ///< a sentence for the author of one that does not
};

constexpr std::size_t ruleCount = 12;
/// In the order of Rule.
const std::array<RuleText, ruleCount>& allRules();
const RuleText& textOf(Rule rule);

/// The rule that a misuse breaks, as the trace tells it.
Rule ruleBrokenBy(const std::string& misuse);

/// What was done, and what the host did to the add-on meanwhile.
struct Action {
    std::string what;
    std::string condition; ///< which call failed or when the user stopped; empty: all went well

    std::string text() const { return condition.empty() ? what : what + ", " + condition; }
};

/// A rule that was broken.
struct Finding {
    Rule rule = Rule::Survival;
    Action action;
    std::string what;
};

} // namespace corvane::validate
