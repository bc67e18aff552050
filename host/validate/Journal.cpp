#include "host/validate/Journal.h"

#include "host/core/base/Text.h"

#include <algorithm>
#include <unistd.h>
#include <vector>

namespace corvane::validate {

namespace {

/// Separates the fields of a line. Texts of add-ons may hold anything, but no control character
/// gets past inOneField().
constexpr char separator = '\t';

std::string inOneField(std::string text) {
    std::replace_if(
        text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
    return text;
}

std::vector<std::string> fieldsOf(const std::string& line) {
    std::vector<std::string> fields{""};
    for (const char c : line) {
        if (c == separator) {
            fields.emplace_back();
        } else {
            fields.back() += c;
        }
    }
    return fields;
}

std::size_t numberIn(const std::string& field) {
    return host::parsedNumber<std::size_t>(field).value_or(0);
}

std::optional<JournalLine> brokenRule(const std::vector<std::string>& fields) {
    const std::size_t rule = numberIn(fields[1]);
    if (rule >= ruleCount) {
        return std::nullopt;
    }
    JournalLine line;
    line.kind = JournalLine::Kind::Broken;
    line.finding = {allRules().at(rule).rule, {fields[2], fields[3]}, fields[4]};
    return line;
}

} // namespace

void Journal::write(const std::string& line) {
    const std::string bytes = line + '\n';
    // The reader waits for nothing else; what is lost with a reader that is gone interests nobody.
    [[maybe_unused]] const ssize_t written = ::write(m_descriptor, bytes.data(), bytes.size());
}

void Journal::at(const Action& action) {
    write("at" + (separator + inOneField(action.what)) + separator + inOneField(action.condition));
}

void Journal::fails(const std::string& operation) {
    write("fails" + (separator + inOneField(operation)));
}

void Journal::broken(const Finding& finding) {
    write("broken" + (separator + std::to_string(static_cast<std::size_t>(finding.rule))) +
          separator + inOneField(finding.action.what) + separator +
          inOneField(finding.action.condition) + separator + inOneField(finding.what));
}

void Journal::failureWasReached() {
    write("reached");
}

void Journal::counts(const Counts& counts) {
    write("counts" + (separator + std::to_string(counts.actions)) + separator +
          std::to_string(counts.failures) + separator + std::to_string(counts.stops));
}

void Journal::end() {
    write("end");
}

std::optional<JournalLine> readJournalLine(const std::string& text) {
    using Kind = JournalLine::Kind;
    const std::vector<std::string> fields = fieldsOf(text);
    const auto is = [&](const char* kind, std::size_t fieldCount) {
        return fields[0] == kind && fields.size() == fieldCount;
    };
    JournalLine line;
    if (is("broken", 5)) {
        return brokenRule(fields);
    }
    if (is("at", 3)) {
        line.action = {fields[1], fields[2]};
    } else if (is("fails", 2)) {
        line.kind = Kind::Fails;
        line.operation = fields[1];
    } else if (is("counts", 4)) {
        line.kind = Kind::Counts;
        line.counts = {numberIn(fields[1]), numberIn(fields[2]), numberIn(fields[3])};
    } else if (is("reached", 1)) {
        line.kind = Kind::FailureReached;
    } else if (is("end", 1)) {
        line.kind = Kind::End;
    } else {
        return std::nullopt;
    }
    return line;
}

} // namespace corvane::validate
