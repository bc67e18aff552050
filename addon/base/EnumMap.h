// Keywords of an enumeration, and the way back from a keyword to its value.
#pragma once

#include "addon/base/CaseInsensitiveStringCompareObj.h"

#include <map>
#include <stdexcept>
#include <string>
#include <string_view>

namespace corvane::corutiltools {

// Inserts each pair of the forward map, turned round, into the reverse map.
template <typename ForwardMap, typename BackwardMap>
void ReverseMap(const ForwardMap& forward, BackwardMap& backward) {
    for (const auto& [value, keyword] : forward) {
        backward.emplace(keyword, value);
    }
}

// One keyword table for the whole process, made on first use. Whoever owns the enumeration T
// declares and defines EnumMap<T>::initializeMaps with its rows.
template <typename T>
class EnumMap {
public:
    static const EnumMap& instance() {
        static const EnumMap theInstance;
        return theInstance;
    }

    EnumMap(const EnumMap&) = delete;
    EnumMap& operator=(const EnumMap&) = delete;

    // Throws std::out_of_range for a value without a row.
    const std::string& toString(T value) const {
        const auto row = m_keywords.find(value);
        if (row == m_keywords.end()) {
            throw std::out_of_range("Enumeration out of range.");
        }
        return row->second;
    }

    // Ignores letter case. Answers false for an unknown keyword and leaves value alone then.
    bool fromString(std::string_view keyword, T& value) const {
        const auto row = m_values.find(keyword);
        if (row == m_values.end()) {
            return false;
        }
        value = row->second;
        return true;
    }

private:
    EnumMap() { initializeMaps(); }

    void initializeMaps();

    std::map<T, std::string> m_keywords;
    std::map<std::string, T, CaseInsensitiveStringCompareObj> m_values;
};

} // namespace corvane::corutiltools
