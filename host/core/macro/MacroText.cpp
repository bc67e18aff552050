// Splits macros into lines and words.
#include "host/core/macro/MacroText.h"

#include "host/core/base/Text.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace corvane::host {

namespace {

constexpr std::size_t longestLine = std::size_t{1} << 20U;
constexpr std::size_t longestShown = 200;
constexpr std::size_t longestCause = 2000;

constexpr std::string_view blanks = " \t\r";

bool isAlphanumeric(char c) {
    return isDigit(c) || isLetter(c);
}

/// Some editors begin their files with it.
std::string withoutByteOrderMark(const std::string& text) {
    constexpr std::string_view mark = "\xef\xbb\xbf";
    return text.compare(0, mark.size(), mark) == 0 ? text.substr(mark.size()) : text;
}

/// Whether a byte belongs to a UTF-8 character that began before it.
bool isContinuation(char c) {
    return (static_cast<unsigned char>(c) & 0xc0U) == 0x80U;
}

bool isControl(char c) {
    return static_cast<unsigned char>(c) < 0x20 || c == 0x7f;
}

/// Part of a text that does no harm in a terminal, whatever file it comes from.
std::string shown(const std::string& text, std::size_t longest) {
    std::size_t size = std::min(text.size(), longest);
    // No further than a character is long: other bytes are no text, and are shown all the same.
    for (int back = 0; back < 3 && size < text.size() && isContinuation(text[size]); ++back) {
        --size;
    }
    std::string result = text.substr(0, size);
    std::replace_if(
        result.begin(), result.end(), [](char c) { return isControl(c) && c != '\n' && c != '\t'; },
        '?');
    return text.size() > longest ? result + "…" : result;
}

} // namespace

MacroError::MacroError(const std::string& file, unsigned long line, const std::string& text,
                       const std::string& cause)
    : HostError(shown(file, longestCause) + ":" + std::to_string(line) + ": " +
                shown(text, longestShown) + "\n" + shown(cause, longestCause)) {}

std::string macroLine(const std::string& name, const std::vector<std::string>& words) {
    std::string line = "$!" + name;
    for (const std::string& word : words) {
        const bool isPlain = word == "=" || (!word.empty() && word.find_first_of(" \t\n\r\"\\=") ==
                                                                  std::string::npos);
        line += ' ' + (isPlain ? word : quoted(word));
    }
    return line;
}

MacroReader::MacroReader(std::istream& stream, std::string fileName)
    : m_stream(stream), m_fileName(std::move(fileName)) {}

bool MacroReader::next(MacroLine& line) {
    std::string text;
    while (readLine(text)) {
        text = trimmed(m_number == 1 ? withoutByteOrderMark(text) : text, blanks);
        if (!text.empty() && text.front() != '#') {
            parse(text, line);
            return true;
        }
    }
    return false;
}

/// Straight from the buffer, since a stream makes much of each byte.
int MacroReader::nextByte() {
    try {
        return m_stream.rdbuf()->sbumpc();
    } catch (const std::exception&) {
        fail({}, "The file cannot be read.");
    }
}

/// Byte by byte, so that a line without end is given up before it fills the memory.
bool MacroReader::readLine(std::string& text) {
    text.clear();
    ++m_number;
    int byte = nextByte();
    const bool isAtEnd = byte == std::istream::traits_type::eof();
    while (byte != '\n' && byte != std::istream::traits_type::eof()) {
        text += static_cast<char>(byte);
        if (text.size() > longestLine) {
            fail(text, "The line is longer than 1 MiB. Is this a macro?");
        }
        byte = nextByte();
    }
    return !isAtEnd;
}

void MacroReader::parse(const std::string& text, MacroLine& line) const {
    if (text.compare(0, 2, "$!") != 0) {
        fail(text, "A command begins with $!, a comment with #.");
    }
    if (text.find('\0') != std::string::npos) {
        fail(text, "There is a zero byte in the line. Is this a macro?");
    }
    const auto nameBegin = text.begin() + 2;
    const auto nameEnd = std::find_if_not(nameBegin, text.end(), isAlphanumeric);
    if (nameBegin == nameEnd) {
        fail(text, "The name of a command is missing behind $!.");
    }
    line.name = upperCase({nameBegin, nameEnd});
    line.number = m_number;
    line.text = text;
    try {
        line.words = splitWords(std::string(nameEnd, text.end()));
    } catch (const HostError& error) {
        fail(text, error.what());
    }
}

void MacroReader::fail(const std::string& text, const std::string& cause) const {
    throw MacroError(m_fileName, m_number, text, cause);
}

} // namespace corvane::host
