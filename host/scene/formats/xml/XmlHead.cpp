#include "host/scene/formats/xml/XmlHead.h"

#include "host/scene/mesh/FileCheck.h"

#include <cctype>
#include <string_view>
#include <utility>

namespace corvane::scene {

namespace {

constexpr std::size_t deepest = 100;
constexpr std::size_t longestTag = std::size_t{1} << 20U;

/// Something that is for VTK to understand.
struct Strange {};

bool isSpace(int byte) {
    return byte == ' ' || byte == '\t' || byte == '\r' || byte == '\n';
}

bool isPartOfName(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_' || c == '-' || c == '.' ||
           c == ':';
}

/// The name and the attributes of a tag, which is given without its angles.
class Tag {
public:
    explicit Tag(std::string_view text) : m_rest(text) {
        if (m_rest.ends_with('/')) {
            m_isClosed = true;
            m_rest.remove_suffix(1);
        }
        m_element.name = takeName();
        for (skipSpaces(); !m_rest.empty(); skipSpaces()) {
            takeAttribute();
        }
    }

    bool isClosed() const { return m_isClosed; }
    XmlElement element() && { return std::move(m_element); }

private:
    void skipSpaces() {
        while (!m_rest.empty() && isSpace(m_rest.front())) {
            m_rest.remove_prefix(1);
        }
    }

    std::string takeName() {
        std::size_t length = 0;
        while (length < m_rest.size() && isPartOfName(m_rest[length])) {
            ++length;
        }
        if (length == 0) {
            throw Strange();
        }
        std::string name(m_rest.substr(0, length));
        m_rest.remove_prefix(length);
        return name;
    }

    char take() {
        if (m_rest.empty()) {
            throw Strange();
        }
        const char first = m_rest.front();
        m_rest.remove_prefix(1);
        return first;
    }

    void takeAttribute() {
        std::string name = takeName();
        skipSpaces();
        const bool hasSign = take() == '=';
        skipSpaces();
        const char quote = take();
        const auto end = m_rest.find(quote);
        if (!hasSign || (quote != '"' && quote != '\'') || end == std::string_view::npos) {
            throw Strange();
        }
        const std::string_view value = m_rest.substr(0, end);
        // VTK looks for the angle that ends a tag without minding quotes.
        const bool isPlain = value.find_first_of("<>&") == std::string_view::npos;
        if (!isPlain || !m_element.attributes.emplace(std::move(name), value).second) {
            throw Strange();
        }
        m_rest.remove_prefix(end + 1);
    }

    std::string_view m_rest;
    XmlElement m_element;
    bool m_isClosed = false;
};

class HeadReader {
public:
    explicit HeadReader(FileBytes& bytes) : m_bytes(bytes) {}

    XmlHead read() && {
        while (!m_isDone) {
            if (!m_bytes.skipTo('<')) {
                throw Strange();
            }
            endText();
            m_bytes.next();
            readMarkup();
        }
        return std::move(m_head);
    }

private:
    void endText() {
        if (!m_open.empty() && m_open.back().dataEnd == 0) {
            m_open.back().dataEnd = m_bytes.position();
        }
    }

    void readMarkup() {
        const int first = m_bytes.peek();
        if (first == '?') {
            textTo("?>");
        } else if (first == '!') {
            skipComment();
        } else if (first == '/') {
            const std::string name = textTo(">");
            close(name.substr(1, name.find_last_not_of(" \t\r\n")));
        } else {
            open(Tag(textTo(">")));
        }
    }

    /// VTK ends the document at the first mention of appended data, be it in a comment.
    void skipComment() {
        const std::string text = textTo("-->");
        if (!text.starts_with("!--") || text.find("<AppendedData") != std::string::npos) {
            throw Strange();
        }
    }

    /// Without the mark, behind which the file is then.
    std::string textTo(std::string_view mark) {
        std::string text;
        while (!text.ends_with(mark)) {
            const int byte = m_bytes.next();
            if (byte == FileBytes::end || text.size() > longestTag) {
                throw Strange();
            }
            text.push_back(static_cast<char>(byte));
        }
        text.resize(text.size() - mark.size());
        return text;
    }

    void open(Tag tag) {
        const bool isClosed = tag.isClosed();
        XmlElement element = std::move(tag).element();
        if (element.name.starts_with("AppendedData")) {
            startAppended(element, isClosed);
            return;
        }
        if (m_open.size() >= deepest) {
            refuse("its elements are nested too deeply");
        }
        while (isSpace(m_bytes.peek())) {
            m_bytes.next();
        }
        element.dataStart = m_bytes.position();
        std::string name = element.name;
        m_open.push_back(std::move(element));
        if (isClosed) {
            m_open.back().dataEnd = m_open.back().dataStart;
            close(name);
        }
    }

    void close(const std::string& name) {
        if (m_open.empty() || m_open.back().name != name) {
            throw Strange();
        }
        XmlElement finished = std::move(m_open.back());
        m_open.pop_back();
        if (m_open.empty()) {
            m_head.root = std::move(finished);
            m_isDone = true;
        } else {
            m_open.back().children.push_back(std::move(finished));
        }
    }

    void startAppended(const XmlElement& element, bool isClosed) {
        while (isSpace(m_bytes.peek())) {
            m_bytes.next();
        }
        const bool isMarked = m_bytes.next() == '_';
        if (isClosed || element.name != "AppendedData" || m_open.size() != 1 || !isMarked) {
            throw Strange();
        }
        m_head.appendedStart = m_bytes.position();
        m_head.isAppendedRaw = element.attribute("encoding") == "raw";
        close(std::string(m_open.back().name));
    }

    FileBytes& m_bytes;
    XmlHead m_head;
    std::vector<XmlElement> m_open; ///< each a child of the one before
    bool m_isDone = false;
};

} // namespace

const std::string& XmlElement::attribute(const std::string& wanted) const {
    static const std::string none;
    const auto found = attributes.find(wanted);
    return found == attributes.end() ? none : found->second;
}

const XmlElement* XmlElement::child(const std::string& wanted) const {
    for (auto element = children.rbegin(); element != children.rend(); ++element) {
        if (element->name == wanted) {
            return &*element;
        }
    }
    return nullptr;
}

std::optional<XmlHead> readXmlHead(FileBytes& bytes) {
    try {
        return HeadReader(bytes).read();
    } catch (const Strange&) {
        return std::nullopt;
    }
}

} // namespace corvane::scene
