#include "host/scene/formats/ensight/EnSightInput.h"

#include "host/core/base/Text.h"
#include "host/scene/mesh/ReadError.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <fstream>
#include <iterator>
#include <limits>
#include <type_traits>

namespace corvane::scene {

namespace {

[[noreturn]] void failAtEnd() {
    throw ReadFailure("ends before its data do");
}

std::string textOf(std::string_view line) {
    return std::string(host::trimmed(line.substr(0, line.find('\0'))));
}

/// Clamps numbers beyond single precision, which no program writes on purpose.
template <class Number>
Number narrowed(double value) {
    constexpr double largest = std::numeric_limits<Number>::max();
    return static_cast<Number>(std::clamp(value, -largest, largest));
}

} // namespace

EnSightInput::Kind EnSightInput::kindOf(const std::string& geometryPath) {
    std::array<char, lineLength> bytes{};
    std::ifstream stream(geometryPath, std::ios::binary);
    stream.read(bytes.data(), bytes.size());
    const std::string_view start(bytes.data(), static_cast<std::size_t>(stream.gcount()));
    if (start.starts_with("Fortran Binary")) {
        throw ReadFailure("is in the binary form of Fortran; text and C Binary can be read");
    }
    return start.starts_with("C Binary") ? Kind::Binary : Kind::Text;
}

EnSightInput::EnSightInput(const std::string& path, Kind kind) : m_kind(kind) {
    std::ifstream stream(path, std::ios::binary);
    m_content.assign(std::istreambuf_iterator<char>(stream), {});
}

bool EnSightInput::isAtEnd() {
    if (m_kind == Kind::Text) {
        skipSpace();
    }
    return m_at >= m_content.size();
}

std::string EnSightInput::line() {
    if (m_kind == Kind::Binary) {
        return textOf(take(lineLength));
    }
    if (m_at >= m_content.size()) {
        failAtEnd();
    }
    const auto end = std::min(m_content.find('\n', m_at), m_content.size());
    const std::string text = textOf(take(end - m_at));
    m_at = std::min(end + 1, m_content.size());
    return text;
}

std::string EnSightInput::keyword() {
    if (isAtEnd()) {
        failAtEnd();
    }
    return line();
}

std::string EnSightInput::peekKeyword() {
    const std::size_t before = m_at;
    std::string text = keyword();
    m_at = before;
    return text;
}

int EnSightInput::integer() {
    return integers(1).front();
}

std::vector<int> EnSightInput::integers(std::size_t count) {
    return values<int>(count);
}

std::vector<float> EnSightInput::numbers(std::size_t count) {
    return values<float>(count);
}

template <class Number>
std::vector<Number> EnSightInput::values(std::size_t count) {
    // In text each number takes at least a digit and a space, except for the last.
    const std::size_t left = m_content.size() - m_at;
    if (count > (m_kind == Kind::Text ? left / 2 + 1 : left / sizeof(Number))) {
        failAtEnd();
    }
    std::vector<Number> numbers(count);
    for (Number& number : numbers) {
        number = m_kind == Kind::Text ? textValue<Number>() : binaryValue<Number>();
    }
    if (m_kind == Kind::Text && count > 0) {
        m_at = std::min(m_content.find('\n', m_at), m_content.size() - 1) + 1;
    }
    return numbers;
}

template <class Number>
Number EnSightInput::textValue() {
    skipSpace();
    if (m_at >= m_content.size()) {
        failAtEnd();
    }
    const char* const first = m_content.data() + m_at;
    const char* const last = m_content.data() + m_content.size();
    std::conditional_t<std::is_integral_v<Number>, Number, double> value{};
    const auto [end, error] = std::from_chars(*first == '+' ? first + 1 : first, last, value);
    if (error != std::errc{} ||
        (end != last && host::whitespace.find(*end) == std::string_view::npos)) {
        throw ReadFailure("holds what is no number where one should be");
    }
    m_at += static_cast<std::size_t>(end - first);
    if constexpr (std::is_integral_v<Number>) {
        return value;
    } else {
        return narrowed<Number>(value);
    }
}

template <class Number>
Number EnSightInput::binaryValue() {
    std::array<char, sizeof(Number)> bytes{};
    const std::string_view taken = take(bytes.size());
    std::copy(taken.begin(), taken.end(), bytes.begin());
    if constexpr (std::is_integral_v<Number>) {
        // The first integer is the number of a part, which is small.
        const auto asItIs = std::bit_cast<Number>(bytes);
        constexpr Number manyParts = 65536;
        if (!m_isOrderKnown) {
            m_isSwapped = asItIs < 0 || asItIs > manyParts;
        }
        m_isOrderKnown = true;
    }
    if (m_isSwapped) {
        std::reverse(bytes.begin(), bytes.end());
    }
    return std::bit_cast<Number>(bytes);
}

std::string_view EnSightInput::take(std::size_t length) {
    if (length > m_content.size() - m_at) {
        failAtEnd();
    }
    const auto taken = std::string_view(m_content).substr(m_at, length);
    m_at += length;
    return taken;
}

void EnSightInput::skipSpace() {
    m_at = std::min(m_content.find_first_not_of(host::whitespace, m_at), m_content.size());
}

} // namespace corvane::scene
