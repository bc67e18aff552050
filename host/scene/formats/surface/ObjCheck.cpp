#include "host/scene/formats/surface/ObjCheck.h"

#include "host/scene/mesh/FileBytes.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <optional>
#include <string_view>

namespace corvane::scene {

namespace {

/// Of VTK's reader.
constexpr std::size_t longestMaterial = 99;
/// It measures the rest of a line for each number on it.
constexpr std::size_t longestElement = std::size_t{1} << 14U;

/// Words of one kind that elements name by numbers: from 1 on, or from -1 on backwards.
class Numbered {
public:
    void add() { ++m_count; }

    void name(std::int64_t number) {
        if (number == 0 || number < -m_count) {
            refuseName();
        }
        m_largest = std::max(m_largest, number);
    }
    /// Elements may name what comes later.
    void compare() const {
        if (m_largest > m_count) {
            refuseName();
        }
    }

private:
    [[noreturn]] static void refuseName() { refuse("a face names what is not there"); }

    std::int64_t m_count = 0;
    std::int64_t m_largest = 0;
};

bool isSpace(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

/// What is left of a line.
class Rest {
public:
    explicit Rest(std::string_view text) : m_text(text) {}

    std::string_view word() {
        skip([](char c) { return isSpace(c); });
        const std::size_t start = m_at;
        skip([](char c) { return !isSpace(c); });
        return m_text.substr(start, m_at - start);
    }
    bool isEmpty() {
        skip([](char c) { return isSpace(c); });
        return m_at == m_text.size();
    }
    void skipWord() {
        skip([](char c) { return !isSpace(c); });
    }

    /// As scanf does: spaces before the number belong to it. Stays where there is none.
    std::optional<std::int64_t> number() {
        std::size_t at = m_at;
        while (at < m_text.size() && isSpace(m_text[at])) {
            ++at;
        }
        if (at < m_text.size() && m_text[at] == '+') {
            ++at;
        }
        std::int64_t number = 0;
        const auto [end, error] =
            std::from_chars(m_text.data() + at, m_text.data() + m_text.size(), number);
        if (error == std::errc::invalid_argument) {
            return std::nullopt;
        }
        if (error != std::errc() || number < INT32_MIN || number > INT32_MAX) {
            refuse("a face names what is not there");
        }
        m_at = static_cast<std::size_t>(end - m_text.data());
        return number;
    }
    bool take(char wanted) {
        const bool isThere = m_at < m_text.size() && m_text[m_at] == wanted;
        m_at += isThere ? 1 : 0;
        return isThere;
    }

private:
    template <class Condition>
    void skip(Condition condition) {
        while (m_at < m_text.size() && condition(m_text[m_at])) {
            ++m_at;
        }
    }

    std::string_view m_text;
    std::size_t m_at = 0;
};

class ObjCheck {
public:
    explicit ObjCheck(const std::string& path) : m_bytes(path) {}

    FileLook check() {
        while (readLine()) {
            checkLine();
        }
        m_points.compare();
        m_textures.compare();
        m_normals.compare();
        return {m_certainty};
    }

private:
    bool readLine() { return m_bytes.readLine(m_line); }

    void checkLine() {
        Rest rest(m_line);
        const std::string_view command = rest.word();
        if (command == "v") {
            m_points.add();
        } else if (command == "vt") {
            m_textures.add();
        } else if (command == "vn") {
            m_normals.add();
        } else if (command == "usemtl") {
            if (rest.word().size() > longestMaterial) {
                refuse("the name of a material is too long");
            }
        } else if (command == "f" || command == "l" || command == "p") {
            checkElement(rest);
        }
    }

    /// A backslash at the end of a line continues it on the next.
    void checkElement(Rest rest) {
        noteLength();
        for (;;) {
            while (!rest.isEmpty()) {
                if (rest.take('\\')) {
                    break;
                }
                checkCorner(rest);
                rest.skipWord();
            }
            if (!m_line.ends_with('\\') || !readLine()) {
                return;
            }
            noteLength();
            rest = Rest(m_line);
        }
    }

    void noteLength() {
        if (m_line.size() > longestElement) {
            m_certainty = Certainty::Unknown;
        }
    }

    /// A point, or point/texture, point//normal, point/texture/normal.
    void checkCorner(Rest& rest) {
        const auto point = rest.number();
        if (!point) {
            return; // VTK tells that
        }
        m_points.name(*point);
        if (!rest.take('/')) {
            return;
        }
        if (rest.take('/')) {
            nameNext(rest, m_normals);
            return;
        }
        if (nameNext(rest, m_textures) && rest.take('/')) {
            nameNext(rest, m_normals);
        }
    }

    static bool nameNext(Rest& rest, Numbered& numbered) {
        const auto number = rest.number();
        if (number) {
            numbered.name(*number);
        }
        return number.has_value();
    }

    FileBytes m_bytes;
    std::string m_line;
    Numbered m_points;
    Numbered m_textures;
    Numbered m_normals;
    Certainty m_certainty = Certainty::Harmless;
};

} // namespace

FileLook checkObjFile(const std::string& path) {
    return ObjCheck(path).check();
}

} // namespace corvane::scene
