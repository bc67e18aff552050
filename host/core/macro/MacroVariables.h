// The variables of macros.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace corvane::host {

/// Names are letters, digits and underscores, and do not begin with a digit; case counts. Functions
/// throw HostError with the cause.
class MacroVariables {
public:
    void set(const std::string& name, const std::string& value);
    /// Keeps the value that set() gave, whether before or after.
    void setDefault(const std::string& name, const std::string& value);

    /// ${NAME} becomes the value of the variable, $${ becomes ${.
    std::string expand(const std::string& text) const;
    /// All words of a line. Rejects what becomes longer than 1 MiB together: variables that hold
    /// each other several times would fill the memory within a few lines.
    std::vector<std::string> expand(const std::vector<std::string>& words) const;
    /// A text that expand() turns into this one.
    static std::string escaped(const std::string& text);

private:
    const std::string& valueOf(const std::string& name) const;

    std::map<std::string, std::string> m_values;
    std::map<std::string, std::string> m_defaults;
};

} // namespace corvane::host
