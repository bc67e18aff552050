#include "host/validate/Report.h"

#include <set>
#include <utility>

namespace corvane::validate {

namespace {

/// More of one kind help nobody.
constexpr std::size_t mostPerRule = 5;

std::string countOf(std::size_t count, const std::string& thing) {
    return std::to_string(count) + ' ' + thing + (count == 1 ? "" : "s");
}

/// What an action breaks in itself it breaks whatever fails in it: the first place is enough.
std::vector<Finding> breachesOf(Rule rule, const Verdict& verdict) {
    std::vector<Finding> breaches;
    std::set<std::pair<std::string, std::string>> told;
    for (const Finding& finding : verdict.findings) {
        if (finding.rule == rule && told.emplace(finding.action.what, finding.what).second) {
            breaches.push_back(finding);
        }
    }
    return breaches;
}

std::string linesAbout(const RuleText& rule, const Verdict& verdict) {
    const std::string name = rule.name;
    const std::vector<Finding> breaches = breachesOf(rule.rule, verdict);
    if (breaches.empty()) {
        return name + ": kept: the add-on " + rule.text + ".\n";
    }
    std::string lines;
    for (std::size_t i = 0; i < breaches.size() && i < mostPerRule; ++i) {
        lines += name + ": broken: " + breaches[i].action.text() + ": " + breaches[i].what + ". " +
                 rule.remedy + '\n';
    }
    if (breaches.size() > mostPerRule) {
        lines += name + ": broken: " + countOf(breaches.size() - mostPerRule, "more place") +
                 " of that kind.\n";
    }
    return lines;
}

} // namespace

bool isKept(const Verdict& verdict) {
    return verdict.findings.empty();
}

std::string reportOf(const std::string& library, const Verdict& verdict) {
    std::string report;
    for (const RuleText& rule : allRules()) {
        report += linesAbout(rule, verdict);
    }
    std::set<Rule> broken;
    for (const Finding& finding : verdict.findings) {
        broken.insert(finding.rule);
    }
    report +=
        library + ": " +
        (broken.empty() ? "all rules kept" : countOf(broken.size(), "rule") + " broken") + "; " +
        countOf(verdict.counts.actions, "action") + ", " +
        countOf(verdict.counts.failures, "failing call") + " and " +
        countOf(verdict.counts.stops, "stop") + " were tried" +
        (verdict.gaveUp ? ", and not more since the add-on ended the process too often" : "") +
        ".\n";
    return report;
}

} // namespace corvane::validate
