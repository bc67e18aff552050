// Which calls of the host are to fail, and how many there were.
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace corvane::memory {

class ScriptedCalls {
public:
    void failNext(std::string operation, std::size_t n);
    void throwAt(std::string operation, std::size_t k);
    void failAt(std::size_t k);
    /// From now on the operations that failAt() counts are kept, in order; taking them ends that.
    void keepCandidates() { m_keepsCandidates = true; }
    std::vector<std::string> takeCandidates();
    /// Asked when the call that failAt() chose has come, with its operation, before it fails;
    /// false: it is spared.
    void askBeforeFailing(std::function<bool(const std::string& operation)> mayFail) {
        m_mayFail = std::move(mayFail);
    }

    /// For TraceSinks::onEnter. Throws std::runtime_error where the script says so.
    bool mayProceed(std::string_view operation, bool hasResult);

    /// How often mayProceed() was asked about the operation.
    std::size_t timesEntered(const std::string& operation) const;
    /// The operation of the call that failAt() chose; empty while it has not come.
    const std::string& failedAt() const { return m_failedAt; }
    /// Entries that no call ever met, as sentences: a name may be misspelt.
    std::vector<std::string> unmet() const;

private:
    struct Entry {
        std::string operation;
        std::size_t before; ///< calls that still go well
        std::size_t count;  ///< calls that fail after them
        bool throws;
        bool wasMet;
    };
    static bool apply(Entry& entry);
    void countEntry(std::string_view operation);

    std::vector<Entry> m_entries;
    std::map<std::string, std::size_t, std::less<>> m_timesEntered; ///< by operation
    std::size_t m_failAt = 0;                                       ///< 0: none
    std::string m_failedAt;
    bool m_keepsCandidates = false;
    std::vector<std::string> m_candidates;
    std::function<bool(const std::string&)> m_mayFail = [](const std::string&) { return true; };
};

} // namespace corvane::memory
