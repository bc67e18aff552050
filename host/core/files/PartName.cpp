#include "host/core/files/PartName.h"

#include "host/core/base/Text.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <optional>

namespace corvane::host {

namespace {

constexpr std::string_view ending = ".part";
/// For the dots and hyphens, two numbers and the ending.
constexpr std::size_t spaceBesideHost = 32;

bool isPlain(char c) {
    return isLetter(c) || isDigit(c) || c == '-' || c == '_' || c == '.';
}

std::string readHostName() {
    std::array<char, 256> buffer{};
    ::gethostname(buffer.data(), buffer.size() - 1);
    std::string name = buffer.data();
    std::replace_if(
        name.begin(), name.end(), [](char c) { return !isPlain(c); }, '_');
    return name;
}

/// Does not change during a run, which recognises its files by it.
const std::string& hostName() {
    static const std::string name = readHostName();
    return name;
}

std::size_t digitsAtEnd(std::string_view text) {
    return text.size() - (text.find_last_not_of("0123456789") + 1);
}

/// "-7" is taken off the end. Whether it was there.
bool dropNumber(std::string_view& text) {
    const std::size_t digits = digitsAtEnd(text);
    if (digits == 0 || digits == text.size() || text[text.size() - digits - 1] != '-') {
        return false;
    }
    text.remove_suffix(digits + 1);
    return true;
}

/// The beginning of the file's own name in that of a part of it; nothing in other names.
std::optional<std::string_view> beginningIn(std::string_view partName) {
    if (!partName.ends_with(ending)) {
        return std::nullopt;
    }
    partName.remove_suffix(ending.size());
    const std::string host = "." + hostName();
    // One number or two: the name of the host may end like a number itself.
    while (dropNumber(partName)) {
        if (partName.ends_with(host)) {
            return partName.substr(0, partName.size() - host.size());
        }
    }
    return std::nullopt;
}

/// Not in the middle of a character of UTF-8, which some file systems refuse.
std::string_view cutOff(std::string_view text, std::size_t most) {
    if (text.size() <= most) {
        return text;
    }
    const auto continuesCharacter = [](char c) { return (c & '\xC0') == '\x80'; };
    while (most > 0 && continuesCharacter(text[most])) {
        --most;
    }
    return text.substr(0, most);
}

} // namespace

PartName::PartName(std::string_view fileName, std::size_t longest) {
    const std::size_t space = std::min(longest, hostName().size() + spaceBesideHost);
    m_beginning = cutOff(beginningIn(fileName).value_or(fileName), longest - space);
}

std::string PartName::numbered(int number) const {
    const std::string repeated = number == 1 ? "" : "-" + std::to_string(number);
    return m_beginning + "." + hostName() + "-" + std::to_string(::getpid()) + repeated +
           std::string(ending);
}

bool PartName::matches(std::string_view fileName) const {
    return beginningIn(fileName) == m_beginning;
}

bool isPartName(std::string_view fileName) {
    return beginningIn(fileName).has_value();
}

} // namespace corvane::host
