// Reads the lines and numbers of an EnSight Gold file one by one.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::scene {

/// Throws ReadFailure where the file ends too early or holds no number: what follows the file's
/// name in a sentence.
class EnSightInput {
public:
    enum class Kind { Text, Binary };

    /// The kind of a geometry file. The files of its variables are of the same kind.
    static Kind kindOf(const std::string& geometryPath);

    EnSightInput(const std::string& path, Kind kind);

    Kind kind() const { return m_kind; }
    bool isAtEnd();
    /// The next line, which may be empty, trimmed.
    std::string line();
    /// The next line that is not blank.
    std::string keyword();
    /// The next keyword, without consuming it.
    std::string peekKeyword();
    int integer();
    std::vector<int> integers(std::size_t count);
    std::vector<float> numbers(std::size_t count);

private:
    static constexpr std::size_t lineLength = 80; ///< of binary files

    template <class Number>
    std::vector<Number> values(std::size_t count);
    template <class Number>
    Number textValue();
    template <class Number>
    Number binaryValue();
    std::string_view take(std::size_t length);
    void skipSpace();

    std::string m_content;
    std::size_t m_at = 0;
    Kind m_kind;
    bool m_isOrderKnown = false;
    bool m_isSwapped = false;
};

} // namespace corvane::scene
