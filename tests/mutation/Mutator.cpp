// Damages files in the ways that programs, disks and networks do, and in worse ones.
#include "tests/mutation/Mutator.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstring>

namespace corvane::test {

namespace {

constexpr std::array badNumbers{"-1",
                                "0",
                                "1",
                                "2",
                                "7",
                                "-7",
                                "255",
                                "65536",
                                "1000000",
                                "100000000",
                                "2147483647",
                                "2147483648",
                                "-2147483648",
                                "4294967295",
                                "4294967296",
                                "1099511627776",
                                "9223372036854775807",
                                "-9223372036854775808",
                                "18446744073709551615",
                                "18446744073709551616",
                                "1e308",
                                "nan",
                                "-inf",
                                "0x10",
                                "",
                                "x"};

constexpr std::array<std::uint64_t, 12> badBits{0,
                                                1,
                                                ~0ULL,
                                                0x7fffffff,
                                                0x80000000,
                                                0xffffffff,
                                                1ULL << 40,
                                                1ULL << 33U,
                                                1ULL << 20U,
                                                0x7fffffffffffffff,
                                                0x8000000000000000,
                                                0x7fc0000000000000};

bool isPartOfNumber(char c) {
    return std::isdigit(static_cast<unsigned char>(c)) != 0 || c == '-' || c == '.';
}

bool isPartOfWord(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_';
}

struct Span {
    std::size_t start;
    std::size_t length;
};

/// The first span of such bytes at the place or behind it.
template <class IsPart>
Span spanFrom(const std::string& content, std::size_t place, IsPart isPart) {
    const auto from = content.begin() + static_cast<std::ptrdiff_t>(place);
    const auto start = std::find_if(from, content.end(), isPart);
    const auto end = std::find_if_not(start, content.end(), isPart);
    return {static_cast<std::size_t>(start - content.begin()),
            static_cast<std::size_t>(end - start)};
}

Span lineAt(const std::string& content, std::size_t place) {
    const auto before = place == 0 ? std::string::npos : content.rfind('\n', place - 1);
    const std::size_t start = before == std::string::npos ? 0 : before + 1;
    const auto end = content.find('\n', place);
    return {start, (end == std::string::npos ? content.size() : end + 1) - start};
}

/// The line again and again, up to a size.
std::string repeated(const std::string& line, std::size_t count) {
    constexpr std::size_t most = 4U << 20U;
    std::string text;
    for (; count > 0 && text.size() < most; --count) {
        text += line;
    }
    return text;
}

} // namespace

std::string Mutator::damaged(std::string content) {
    for (std::size_t left = 1 + below(2) * below(4); left > 0; --left) {
        damageOnce(content);
    }
    return content;
}

void Mutator::damageOnce(std::string& content) {
    using Damage = void (Mutator::*)(std::string&);
    constexpr std::array<Damage, 16> damages{&Mutator::replaceNumber,
                                             &Mutator::replaceNumber,
                                             &Mutator::replaceNumber,
                                             &Mutator::replaceNumber,
                                             &Mutator::replaceNumber,
                                             &Mutator::replaceNumber,
                                             &Mutator::replaceBinaryNumber,
                                             &Mutator::replaceBinaryNumber,
                                             &Mutator::replaceBinaryNumber,
                                             &Mutator::flipBytes,
                                             &Mutator::swapWord,
                                             &Mutator::dropLines,
                                             &Mutator::repeatLine,
                                             &Mutator::nestLine,
                                             &Mutator::dropBytes,
                                             &Mutator::clearBytes};
    if (!content.empty()) {
        (this->*damages[below(damages.size())])(content);
    }
}

void Mutator::flipBytes(std::string& content) {
    for (std::size_t left = 1 + below(8); left > 0; --left) {
        content[place(content)] = static_cast<char>(below(256));
    }
}

void Mutator::replaceNumber(std::string& content) {
    const Span number = spanFrom(content, place(content), isPartOfNumber);
    content.replace(number.start, number.length, badNumbers[below(badNumbers.size())]);
}

void Mutator::replaceBinaryNumber(std::string& content) {
    const std::size_t size = below(2) == 0 ? 4 : 8;
    if (content.size() < size) {
        return;
    }
    std::uint64_t bits = badBits[below(badBits.size())];
    if (below(2) == 0) { // the order of bytes that most files of this machine have not
        bits = size == 4 ? __builtin_bswap32(static_cast<std::uint32_t>(bits))
                         : __builtin_bswap64(bits);
    }
    const std::size_t at = std::min(place(content), content.size() - size);
    std::memcpy(content.data() + at, &bits, size);
}

/// One word of the file in place of another.
void Mutator::swapWord(std::string& content) {
    const Span word = spanFrom(content, place(content), isPartOfWord);
    const Span other = spanFrom(content, place(content), isPartOfWord);
    const std::string text = content.substr(other.start, other.length);
    content.replace(word.start, word.length, text);
}

void Mutator::dropLines(std::string& content) {
    for (std::size_t left = 1 + below(3); left > 0 && !content.empty(); --left) {
        const Span line = lineAt(content, place(content));
        content.erase(line.start, line.length);
    }
}

void Mutator::repeatLine(std::string& content) {
    const Span line = lineAt(content, place(content));
    constexpr std::array<std::size_t, 4> counts{1, 2, 10, 5000};
    content.insert(line.start,
                   repeated(content.substr(line.start, line.length), counts[below(counts.size())]));
}

/// A line that opens something is opened over and over.
void Mutator::nestLine(std::string& content) {
    const auto open = content.find('<', place(content));
    constexpr std::array<std::size_t, 2> depths{300, 200000};
    const std::size_t depth = depths[below(depths.size())];
    if (open == std::string::npos || below(2) == 0) {
        const Span line = lineAt(content, place(content));
        content.insert(line.start, repeated(content.substr(line.start, line.length), depth));
        return;
    }
    content.insert(open, repeated("<DataSet>", depth));
}

void Mutator::dropBytes(std::string& content) {
    const std::size_t at = place(content);
    content.erase(at, below(4) == 0 ? std::string::npos : 1 + below(64));
}

void Mutator::clearBytes(std::string& content) {
    const std::size_t at = place(content);
    const std::size_t length = std::min(1 + below(64), content.size() - at);
    content.replace(at, length, length, below(2) == 0 ? '\0' : '\xff');
}

std::size_t Mutator::below(std::size_t end) {
    return end == 0 ? 0 : m_random() % end;
}

std::size_t Mutator::place(const std::string& content) {
    constexpr std::size_t start = 2000;
    return below(3) == 0 ? below(content.size()) : below(std::min(start, content.size()));
}

} // namespace corvane::test
