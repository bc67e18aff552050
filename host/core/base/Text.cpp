#include "host/core/base/Text.h"

#include <algorithm>
#include <array>

namespace corvane::host {

std::string lowerCase(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), toLower);
    return result;
}

std::string upperCase(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), toUpper);
    return result;
}

bool equalIgnoringCase(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char left, char right) { return toLower(left) == toLower(right); });
}

std::string_view trimmed(std::string_view text, std::string_view dropped) {
    const std::size_t first = text.find_first_not_of(dropped);
    return first == std::string_view::npos ? std::string_view()
                                           : trimmedAtEnd(text.substr(first), dropped);
}

std::string_view trimmedAtEnd(std::string_view text, std::string_view dropped) {
    // Where all of it is dropped, npos + 1 is 0.
    return text.substr(0, text.find_last_not_of(dropped) + 1);
}

std::string exactText(double number) {
    std::array<char, 32> buffer{}; // no double needs more than 24
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number).ptr;
    return {buffer.data(), end};
}

} // namespace corvane::host
