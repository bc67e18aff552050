// Ordered list of strings, such as the path of a style value.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace corvane::toolbox {

class StringList {
public:
    StringList() {}

    void append(const std::string& s) { m_items.push_back(s); }
    long count() const { return long(m_items.size()); }

    // n from 1 to count(); throws std::out_of_range otherwise.
    const std::string& string(long n) const { return m_items.at(std::size_t(n - 1)); }

private:
    std::vector<std::string> m_items;
};

} // namespace corvane::toolbox
