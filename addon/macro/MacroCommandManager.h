// Turns macro command strings into commands with parameters, and back.
#pragma once

#include "addon/base/EnumMap.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

namespace corvane::corutiltools {

// A command string is a command keyword followed by words of the form keyword=value. The keywords
// are those of EnumMap<CommandT> and EnumMap<ParameterT>, in any letter case. ErrorT, made from a
// message, is thrown for a string that says nothing meaningful; outputs are unchanged then.
template <typename CommandT, typename ParameterT, typename ErrorT>
class MacroCommandManager {
public:
    using Parameters = std::vector<std::pair<ParameterT, std::string>>;

    // Each character of delimiters separates words.
    explicit MacroCommandManager(std::string delimiters) : m_delimiters(std::move(delimiters)) {}

    // Splits the text into words. Every word but the first is meant to hold a "=", and a value that
    // begins with a double quote goes on to the next one, delimiters included. Throws ErrorT for a
    // missing "=" or quote, and std::out_of_range for text that ends in a delimiter after a word:
    // hosts hand over commands without trailing blanks.
    void tokenize(const std::string& text, std::vector<std::string>& tokens) const;

    // Values lose all double quotes at their ends. Duplicate parameters are kept, in order. Whether
    // a parameter suits the command is for the command's executer to say.
    void parseMacroCommandString(const std::string& text, CommandT& command,
                                 Parameters& parameters) const;

    // Throws std::out_of_range for a command or parameter without keyword. A value that holds a
    // double quote is written as it stands, since the syntax has no escape character.
    std::string buildMacroCommandString(CommandT command, const Parameters& parameters) const;

private:
    std::pair<ParameterT, std::string> parseParameter(const std::string& word) const;

    static std::string withoutOuterQuotes(const std::string& value);

    std::string m_delimiters;
};

template <typename CommandT, typename ParameterT, typename ErrorT>
void MacroCommandManager<CommandT, ParameterT, ErrorT>::tokenize(
    const std::string& text, std::vector<std::string>& tokens) const {
    constexpr auto none = std::string::npos;
    std::vector<std::string> words;
    auto start = text.find_first_not_of(m_delimiters);
    auto end = text.find_first_of(m_delimiters, start);
    std::string::size_type equals = 0;
    while (start != none || end != none) {
        // After trailing delimiters start is none while end is not, and substr refuses.
        words.push_back(text.substr(start, end - start));
        start = text.find_first_not_of(m_delimiters, end);
        if (start == none) {
            continue;
        }
        // The sign may belong to a later word. Looking again only when it was passed keeps the work
        // in proportion to the text.
        if (equals < start) {
            equals = text.find('=', start);
        }
        if (equals == none) {
            throw ErrorT("Invalid macro command string format.");
        }
        auto searchStart = start;
        if (equals + 1 < text.size() && text[equals + 1] == '"') {
            searchStart = text.find('"', equals + 2);
            if (searchStart == none) {
                throw ErrorT("Invalid macro command string format. Unmatched quotation mark.");
            }
        }
        end = text.find_first_of(m_delimiters, searchStart);
    }
    tokens.swap(words);
}

template <typename CommandT, typename ParameterT, typename ErrorT>
void MacroCommandManager<CommandT, ParameterT, ErrorT>::parseMacroCommandString(
    const std::string& text, CommandT& command, Parameters& parameters) const {
    std::vector<std::string> words;
    tokenize(text, words);
    if (words.empty()) {
        throw ErrorT("Invalid macro command string.");
    }
    CommandT parsedCommand{};
    if (!EnumMap<CommandT>::instance().fromString(words.front(), parsedCommand)) {
        throw ErrorT("Unknown macro command: " + words.front());
    }
    Parameters parsedParameters;
    std::transform(words.begin() + 1, words.end(), std::back_inserter(parsedParameters),
                   [this](const std::string& word) { return parseParameter(word); });
    command = parsedCommand;
    parameters.swap(parsedParameters);
}

template <typename CommandT, typename ParameterT, typename ErrorT>
std::pair<ParameterT, std::string>
MacroCommandManager<CommandT, ParameterT, ErrorT>::parseParameter(const std::string& word) const {
    const auto equals = word.find('=');
    if (equals == std::string::npos) {
        throw ErrorT("Invalid macro parameter string: " + word);
    }
    const std::string keyword = word.substr(0, equals);
    ParameterT parameter{};
    if (!EnumMap<ParameterT>::instance().fromString(keyword, parameter)) {
        throw ErrorT("Unknown macro parameter: " + keyword);
    }
    return {parameter, withoutOuterQuotes(word.substr(equals + 1))};
}

template <typename CommandT, typename ParameterT, typename ErrorT>
std::string
MacroCommandManager<CommandT, ParameterT, ErrorT>::withoutOuterQuotes(const std::string& value) {
    const auto first = value.find_first_not_of('"');
    if (first == std::string::npos) {
        return {};
    }
    return value.substr(first, value.find_last_not_of('"') - first + 1);
}

template <typename CommandT, typename ParameterT, typename ErrorT>
std::string MacroCommandManager<CommandT, ParameterT, ErrorT>::buildMacroCommandString(
    CommandT command, const Parameters& parameters) const {
    std::string text = EnumMap<CommandT>::instance().toString(command);
    for (const auto& [parameter, value] : parameters) {
        text += m_delimiters + EnumMap<ParameterT>::instance().toString(parameter) + '=';
        const bool needsQuotes = value.find_first_of(m_delimiters) != std::string::npos;
        text += needsQuotes ? '"' + value + '"' : value;
    }
    return text;
}

} // namespace corvane::corutiltools
