#include "host/core/base/QuotedWords.h"

#include "host/core/base/HostError.h"

namespace corvane::host {

namespace {

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r';
}

/// Takes words from a line, one by one.
class Splitter {
public:
    explicit Splitter(const std::string& text) : m_text(text) {}

    std::vector<std::string> words() {
        std::vector<std::string> all;
        while (skipBlanks()) {
            all.push_back(word());
        }
        return all;
    }

private:
    bool skipBlanks() {
        while (!atEnd() && isBlank(m_text[m_at])) {
            ++m_at;
        }
        return !atEnd();
    }

    std::string word() {
        switch (m_text[m_at]) {
        case '=':
            ++m_at;
            return "=";
        case '"':
            return quotedWord();
        default:
            return plainWord();
        }
    }

    std::string plainWord() {
        const std::size_t begin = m_at;
        while (!atEnd() && !isBlank(m_text[m_at]) && m_text[m_at] != '=') {
            if (m_text[m_at] == '"') {
                throw HostError("A quote stands within a word.");
            }
            ++m_at;
        }
        return m_text.substr(begin, m_at - begin);
    }

    std::string quotedWord() {
        std::string result;
        for (++m_at; !atEnd() && m_text[m_at] != '"'; ++m_at) {
            result += m_text[m_at] == '\\' ? escaped() : m_text[m_at];
        }
        if (atEnd()) {
            throw HostError("A closing quote is missing.");
        }
        ++m_at;
        if (!atEnd() && !isBlank(m_text[m_at]) && m_text[m_at] != '=') {
            throw HostError("A blank is missing behind a quoted word.");
        }
        return result;
    }

    /// Stands on the last character of the escape afterwards.
    char escaped() {
        ++m_at;
        switch (atEnd() ? '\0' : m_text[m_at]) {
        case '"':
            return '"';
        case '\\':
            return '\\';
        case 'n':
            return '\n';
        default:
            throw HostError("A backslash within quotes must be followed by \\, \" or n.");
        }
    }

    bool atEnd() const { return m_at >= m_text.size(); }

    const std::string& m_text;
    std::size_t m_at = 0;
};

} // namespace

std::string quoted(const std::string& text) {
    std::string result = "\"";
    for (const char c : text) {
        switch (c) {
        case '"':
        case '\\':
            result += '\\';
            result += c;
            break;
        case '\n':
            result += "\\n";
            break;
        default:
            result += c;
        }
    }
    return result + '"';
}

std::vector<std::string> splitWords(const std::string& text) {
    return Splitter(text).words();
}

} // namespace corvane::host
