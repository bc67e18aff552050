// Texts compared, trimmed and turned into numbers alike in every country: ASCII, and no locale.
#pragma once

#include <charconv>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace corvane::host {

constexpr bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

constexpr bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

constexpr char toLower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

constexpr char toUpper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

std::string lowerCase(std::string_view text);
std::string upperCase(std::string_view text);

/// Letters beyond ASCII are different in upper and lower case.
bool equalIgnoringCase(std::string_view a, std::string_view b);

inline constexpr std::string_view whitespace = " \t\r\n\v\f";

/// The text without the given characters at its ends.
std::string_view trimmed(std::string_view text, std::string_view dropped = whitespace);
/// The text without the given characters at its end; those in front stay.
std::string_view trimmedAtEnd(std::string_view text, std::string_view dropped = whitespace);

/// The number that the whole text is; nothing for any other text, and for numbers that Number
/// cannot hold. There is no plus sign; "inf" and "nan" are numbers where Number has them.
template <typename Number>
std::optional<Number> parsedNumber(std::string_view text) {
    Number number{};
    const char* const last = text.data() + text.size();
    const auto [end, error] = std::from_chars(text.data(), last, number);
    return error == std::errc() && end == last ? std::optional(number) : std::nullopt;
}

/// The shortest text that reads as the same number.
std::string exactText(double number);

} // namespace corvane::host
