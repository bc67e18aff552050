// Which calls of the host are to fail, and how many there were.
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::test {

class ScriptedCalls {
public:
    void failNext(std::string operation, std::size_t n);
    void throwAt(std::string operation, std::size_t k);
    void failAt(std::size_t k);

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
};

} // namespace corvane::test
