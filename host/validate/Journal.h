// What a trial tells while it goes on, so that the last line of one that was cut off says where.
#pragma once

#include "host/validate/Rule.h"

#include <cstddef>
#include <optional>
#include <string>

namespace corvane::validate {

/// How much was tried.
struct Counts {
    std::size_t actions = 0;
    std::size_t failures = 0; ///< calls of the host that failed
    std::size_t stops = 0;
};

/// Written by the trial, line by line, unbuffered.
class Journal {
public:
    /// The descriptor must outlive the journal.
    explicit Journal(int descriptor) : m_descriptor(descriptor) {}

    void at(const Action& action);            ///< what is tried next
    void fails(const std::string& operation); ///< in what is tried
    void broken(const Finding& finding);
    void failureWasReached();
    void counts(const Counts& counts);
    void end(); ///< all was tried, and the process is about to end

private:
    void write(const std::string& line);

    int m_descriptor;
};

/// One line of a journal.
struct JournalLine {
    enum class Kind { At, Fails, Broken, FailureReached, Counts, End };

    Kind kind = Kind::At;
    Action action;
    std::string operation;
    Finding finding;
    Counts counts;
};

/// Nothing for a line that no journal writes.
std::optional<JournalLine> readJournalLine(const std::string& line);

} // namespace corvane::validate
