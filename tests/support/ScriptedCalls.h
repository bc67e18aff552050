// Which calls of the host are to fail.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::test {

class ScriptedCalls {
public:
    void failNext(std::string operation, std::size_t n);
    void throwAt(std::string operation, std::size_t k);
    void failAt(std::size_t k);

    /// For CallTrace::onEnter. Throws std::runtime_error where the script says so.
    bool mayProceed(std::string_view operation, bool hasResult);

    /// Whether the call that failAt() chose has come.
    bool hasFailedAt() const { return m_hasFailedAt; }
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

    std::vector<Entry> m_entries;
    std::size_t m_failAt = 0; ///< 0: none
    bool m_hasFailedAt = false;
};

} // namespace corvane::test
