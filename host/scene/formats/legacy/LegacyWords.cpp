#include "host/scene/formats/legacy/LegacyWords.h"

#include "host/core/base/Text.h"

#include <array>
#include <map>
#include <sstream>

namespace corvane::scene {

namespace {

/// VTK splits what is longer.
constexpr std::size_t longestWord = 250;

/// Bytes of a value in a binary file.
std::optional<std::uint64_t> sizeOf(const std::string& type) {
    static const std::map<std::string, std::uint64_t> sizes{
        {"char", 1},           {"signed_char", 1}, {"unsigned_char", 1}, {"short", 2},
        {"unsigned_short", 2}, {"int", 4},         {"unsigned_int", 4},  {"vtkidtype", 4},
        {"float", 4},          {"long", 8},        {"unsigned_long", 8}, {"vtktypeint64", 8},
        {"vtktypeuint64", 8},  {"double", 8}};
    const auto found = sizes.find(type);
    return found == sizes.end() ? std::nullopt : std::optional(found->second);
}

LegacyNumber numberOf(const std::string& type, std::uint64_t size) {
    static const std::map<std::uint64_t, std::uint64_t> largest{{2, INT16_MAX}, {8, INT64_MAX}};
    const auto found = largest.find(size);
    return {type != "float" && type != "double",
            found == largest.end() ? LegacyNumber{}.largest : found->second};
}

bool isSpace(int byte) {
    return byte == ' ' || (byte >= '\t' && byte <= '\r');
}

} // namespace

void LegacyWords::readHeader() {
    constexpr std::string_view mark = "# vtk DataFile Version ";
    const std::string first = line();
    std::istringstream version(first.substr(std::min(first.size(), mark.size())));
    int major = 0;
    int minor = 0;
    char dot = 0;
    if (!first.starts_with(mark) || !(version >> major >> dot >> minor) || dot != '.' ||
        major < 0 || major > 5 || minor < 0 || minor > 9) {
        throw LegacyStrange();
    }
    m_version = 10 * major + minor;
    line();
    const std::string kind = keyword();
    m_isText = kind == "ascii";
    if (!m_isText && kind != "binary") {
        throw LegacyStrange();
    }
}

std::string LegacyWords::keyword() {
    skipSpaces();
    return m_bytes.peek() == FileBytes::end ? std::string() : host::lowerCase(word());
}

std::string LegacyWords::word() {
    skipSpaces();
    std::string word;
    while (m_bytes.peek() != FileBytes::end && !isSpace(m_bytes.peek())) {
        word.push_back(static_cast<char>(m_bytes.next()));
        if (word.size() > longestWord) {
            throw LegacyStrange();
        }
    }
    if (word.empty()) {
        refuse("the file ends before its data do");
    }
    return word;
}

std::uint64_t LegacyWords::count() {
    const std::string text = word();
    const auto number = host::parsedNumber<std::int64_t>(text);
    if (!number || *number < 0) {
        refuse("\"" + text + "\" cannot be a number of values");
    }
    return static_cast<std::uint64_t>(*number);
}

std::string LegacyWords::line() {
    std::string line;
    for (int byte = m_bytes.next(); byte != '\n'; byte = m_bytes.next()) {
        if (byte == FileBytes::end || line.size() > longestWord) {
            throw LegacyStrange();
        }
        line.push_back(static_cast<char>(byte));
    }
    return std::string(host::trimmedAtEnd(line, "\r"));
}

void LegacyWords::skipSpaces() {
    while (isSpace(m_bytes.peek())) {
        m_bytes.next();
    }
}

void LegacyWords::skipArray(const std::string& type, std::uint64_t tuples,
                            std::uint64_t components) {
    const std::string known = host::lowerCase(type);
    const std::uint64_t values = cappedProduct(tuples, components);
    const auto size = sizeOf(known);
    if (known != "bit" && !size) {
        throw LegacyStrange();
    }
    constexpr std::uint64_t bitsOfByte = 8;
    skipValues(values,
               size ? cappedProduct(values, *size)
                    : values / bitsOfByte + (values % bitsOfByte == 0 ? 0 : 1),
               numberOf(known, size.value_or(1)));
    skipMetaData(components);
}

void LegacyWords::skipValues(std::uint64_t values, std::uint64_t bytesInBinary,
                             const LegacyNumber& number) {
    if (values == 0) {
        return;
    }
    if (m_isText) {
        skipNumbers(values, number);
        return;
    }
    endTypeLine();
    expectBytes(bytesInBinary);
    m_bytes.seek(m_bytes.position() + bytesInBinary);
}

void LegacyWords::skipNumbers(std::uint64_t count, const LegacyNumber& number) {
    expectBytes(count); // each is a byte at least
    for (; count > 0; --count) {
        skipSpaces();
        if (m_bytes.peek() == FileBytes::end) {
            refuse("the file ends before its data do");
        }
        if (m_bytes.peek() == '-') {
            m_bytes.next();
        }
        number.isWhole ? skipWhole(number.largest) : skipReal();
        if (m_bytes.peek() != FileBytes::end && !isSpace(m_bytes.peek())) {
            throw LegacyStrange();
        }
    }
}

void LegacyWords::skipWhole(std::uint64_t largest) {
    std::uint64_t value = 0;
    if (skipDigits(value) == 0 || value > largest) {
        throw LegacyStrange();
    }
}

/// What is too large for its type is no number to VTK either.
void LegacyWords::skipReal() {
    constexpr std::uint64_t largestExponent = 30;
    std::uint64_t value = 0;
    std::size_t digits = skipDigits(value);
    bool isSmall = digits < largestExponent;
    if (m_bytes.peek() == '.') {
        m_bytes.next();
        digits += skipDigits(value);
    }
    if (m_bytes.peek() == 'e' || m_bytes.peek() == 'E') {
        m_bytes.next();
        const bool isNegative = m_bytes.peek() == '-';
        if (isNegative || m_bytes.peek() == '+') {
            m_bytes.next();
        }
        std::uint64_t exponent = 0;
        isSmall = skipDigits(exponent) > 0 && isSmall &&
                  (isNegative || exponent + digits < largestExponent);
    }
    if (digits == 0 || !isSmall) {
        throw LegacyStrange();
    }
}

/// Their number, and that which they make, or the largest where it is larger.
std::size_t LegacyWords::skipDigits(std::uint64_t& value) {
    constexpr std::uint64_t base = 10;
    std::size_t digits = 0;
    value = 0;
    for (; m_bytes.peek() >= '0' && m_bytes.peek() <= '9'; ++digits) {
        const auto digit = static_cast<std::uint64_t>(m_bytes.next() - '0');
        value = value > INT64_MAX / base ? UINT64_MAX : base * value + digit;
    }
    return digits;
}

void LegacyWords::walkIntegers(std::uint64_t count,
                               const std::function<std::uint64_t(std::int64_t)>& visit) {
    constexpr std::uint64_t size = 4;
    if (!m_isText) {
        endTypeLine();
    }
    expectBytes(m_isText ? count : cappedProduct(count, size));
    for (std::uint64_t at = 0; at < count; ++at) {
        std::optional<std::int64_t> number;
        if (m_isText) {
            number = host::parsedNumber<std::int32_t>(word());
        } else {
            number = binaryInteger();
        }
        if (!number) {
            throw LegacyStrange();
        }
        const std::uint64_t skipped = visit(*number);
        if (skipped > count - at - 1) {
            refuse("its cells have more points than are listed");
        }
        if (m_isText) {
            skipNumbers(skipped, {true});
        } else {
            m_bytes.seek(m_bytes.position() + size * skipped);
        }
        at += skipped;
    }
}

/// Such files have the high byte first.
std::int64_t LegacyWords::binaryInteger() {
    std::array<unsigned char, 4> bytes{};
    if (!m_bytes.read(bytes.data(), bytes.size())) {
        refuse("the file ends before its data do");
    }
    std::uint32_t number = 0;
    for (const unsigned char byte : bytes) {
        number = number << 8U | byte;
    }
    return static_cast<std::int32_t>(number);
}

/// Binary values begin behind the line that tells of them.
void LegacyWords::endTypeLine() {
    line();
}

void LegacyWords::expectBytes(std::uint64_t bytes) const {
    if (bytes > m_bytes.left()) {
        refuse("the file ends before its data do");
    }
}

/// What VTK's writer puts behind arrays, up to an empty line.
void LegacyWords::skipMetaData(std::uint64_t components) {
    skipSpaces();
    const std::uint64_t start = m_bytes.position();
    if (m_bytes.peek() != 'M' && m_bytes.peek() != 'm') {
        return;
    }
    if (keyword() != "metadata") {
        m_bytes.seek(start);
        return;
    }
    line();
    for (std::string text = line(); !text.empty(); text = line()) {
        const std::string small = host::lowerCase(text);
        if (small.starts_with("component_names")) {
            for (std::uint64_t i = 0; i < components; ++i) {
                line();
            }
        } else if (small.starts_with("information ")) {
            skipInformation(small);
        } else {
            throw LegacyStrange();
        }
    }
}

/// VTK reads as many keys as it is told, whatever they are, and as many numbers of each.
void LegacyWords::skipInformation(const std::string& header) {
    std::istringstream words(header);
    std::string keyword;
    int keys = -1;
    if (!(words >> keyword >> keys) || keys < 0) {
        throw LegacyStrange();
    }
    for (; keys > 0; --keys) {
        const std::string name = line();
        std::istringstream data(line());
        int length = 0;
        double first = 0.0;
        double second = 0.0;
        const bool isRange = name == "NAME L2_NORM_RANGE LOCATION vtkDataArray" ||
                             name == "NAME L2_NORM_FINITE_RANGE LOCATION vtkDataArray";
        if (!isRange || !(data >> keyword >> length >> first >> second) || keyword != "DATA" ||
            length != 2 || data >> keyword) {
            throw LegacyStrange();
        }
    }
}

} // namespace corvane::scene
