// Replaces variables by their values.
#include "host/core/macro/MacroVariables.h"

#include "host/core/base/Text.h"
#include "host/core/macro/MacroWords.h"

#include <algorithm>
#include <string_view>

namespace corvane::host {

namespace {

bool canBeginName(char c) {
    return isLetter(c) || c == '_';
}

void expectName(const std::string& name) {
    const bool isName =
        !name.empty() && canBeginName(name.front()) &&
        std::all_of(name.begin(), name.end(), [](char c) { return canBeginName(c) || isDigit(c); });
    if (!isName) {
        reject("\"" + name +
               "\" is no name of a variable: letters, digits and underscores make one.");
    }
}

void checkLength(std::size_t length) {
    constexpr std::size_t longest = std::size_t{1} << 20U;
    if (length > longest) {
        reject("With the values of its variables the line is longer than 1 MiB.");
    }
}

bool startsWith(const std::string& text, std::size_t at, std::string_view part) {
    return text.compare(at, part.size(), part) == 0;
}

} // namespace

void MacroVariables::set(const std::string& name, const std::string& value) {
    expectName(name);
    m_values[name] = value;
}

void MacroVariables::setDefault(const std::string& name, const std::string& value) {
    expectName(name);
    m_defaults[name] = value;
}

std::string MacroVariables::expand(const std::string& text) const {
    std::string result;
    for (std::size_t at = 0; at < text.size();) {
        if (startsWith(text, at, "$${")) {
            result += "${";
            at += 3;
        } else if (startsWith(text, at, "${")) {
            const std::size_t end = text.find('}', at);
            if (end == std::string::npos) {
                reject("A closing brace is missing behind \"${\".");
            }
            result += valueOf(text.substr(at + 2, end - at - 2));
            at = end + 1;
            checkLength(result.size());
        } else {
            result += text[at++];
        }
    }
    return result;
}

std::vector<std::string> MacroVariables::expand(const std::vector<std::string>& words) const {
    std::vector<std::string> result;
    std::size_t length = 0;
    for (const std::string& word : words) {
        result.push_back(expand(word));
        length += result.back().size();
        checkLength(length);
    }
    return result;
}

std::string MacroVariables::escaped(const std::string& text) {
    std::string result;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (startsWith(text, at, "${")) {
            result += '$';
        }
        result += text[at];
    }
    return result;
}

const std::string& MacroVariables::valueOf(const std::string& name) const {
    for (const auto* values : {&m_values, &m_defaults}) {
        const auto found = values->find(name);
        if (found != values->end()) {
            return found->second;
        }
    }
    reject("There is no variable \"" + name + "\". Give it a value with --set " + name +
           "=VALUE, or with $!SET.");
}

} // namespace corvane::host
