#include "host/memory/ScriptedCalls.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <utility>

namespace corvane::memory {

namespace {

/// No host that keeps to the contract answers FALSE to these while something is to be given back.
bool cannotFail(std::string_view operation) {
    constexpr std::array<std::string_view, 4> operations{
        "CorUtilExportIsRecording", "CorUtilExportFinish", "CorUtilExportCancel",
        "CorUtilStateChangeRemoveListener"};
    return std::find(operations.begin(), operations.end(), operation) != operations.end();
}

} // namespace

void ScriptedCalls::failNext(std::string operation, std::size_t n) {
    m_entries.push_back({std::move(operation), 0, n, false, false});
}

void ScriptedCalls::throwAt(std::string operation, std::size_t k) {
    m_entries.push_back({std::move(operation), k - 1, 1, true, false});
}

void ScriptedCalls::failAt(std::size_t k) {
    m_failAt = k;
    m_failedAt.clear();
}

std::vector<std::string> ScriptedCalls::takeCandidates() {
    m_keepsCandidates = false;
    return std::exchange(m_candidates, {});
}

std::size_t ScriptedCalls::timesEntered(const std::string& operation) const {
    const auto found = m_timesEntered.find(operation);
    return found != m_timesEntered.end() ? found->second : 0;
}

void ScriptedCalls::countEntry(std::string_view operation) {
    const auto found = m_timesEntered.find(operation);
    if (found != m_timesEntered.end()) {
        ++found->second;
    } else {
        m_timesEntered.emplace(operation, 1);
    }
}

bool ScriptedCalls::mayProceed(std::string_view operation, bool hasResult) {
    countEntry(operation);
    const bool isCandidate = hasResult && !cannotFail(operation);
    if (isCandidate && m_keepsCandidates) {
        m_candidates.emplace_back(operation);
    }
    if (isCandidate && m_failAt > 0 && --m_failAt == 0) {
        m_failedAt = operation;
        return !m_mayFail(m_failedAt);
    }
    bool proceeds = true;
    for (Entry& entry : m_entries) {
        if (entry.operation == operation) {
            proceeds = apply(entry) && proceeds;
        }
    }
    return proceeds;
}

bool ScriptedCalls::apply(Entry& entry) {
    if (entry.before > 0) {
        --entry.before;
        return true;
    }
    if (entry.count == 0) {
        return true;
    }
    --entry.count;
    entry.wasMet = true;
    if (entry.throws) {
        throw std::runtime_error(entry.operation + " threw");
    }
    return false;
}

std::vector<std::string> ScriptedCalls::unmet() const {
    std::vector<std::string> sentences;
    for (const Entry& entry : m_entries) {
        if (!entry.wasMet) {
            sentences.push_back(entry.operation + " was to fail and was not called");
        }
    }
    return sentences;
}

} // namespace corvane::memory
