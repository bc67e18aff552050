// Finds, checks, writes and reads style values.
#include "host/core/page/StyleTree.h"

#include "host/core/base/Text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <stdexcept>
#include <utility>

namespace corvane::host {

namespace {

constexpr char separator = '/';

/// The lower-case joined path, built in place: an animation looks up a dozen paths a frame.
class Key {
public:
    /// Of strings, or of views of some.
    template <class Path>
    explicit Key(const Path& path) {
        for (const std::string_view keyword : path) {
            m_valid = m_valid && keyword.find(separator) == std::string_view::npos &&
                      m_length + keyword.size() < m_text.size();
            if (!m_valid) {
                return;
            }
            if (m_length > 0) {
                m_text[m_length++] = separator;
            }
            std::transform(keyword.begin(), keyword.end(), m_text.begin() + m_length, toLower);
            m_length += keyword.size();
        }
    }

    bool isValid() const { return m_valid && m_length > 0; }
    std::string_view text() const { return {m_text.data(), m_length}; }

private:
    std::array<char, 256> m_text; ///< longer than any path that is bound
    std::size_t m_length = 0;
    bool m_valid = true;
};

/// Writes the value and tells whether that changed anything.
template <typename T>
StyleSetResult_e assign(T& target, const T& value) {
    if (target == value) {
        return StyleSet_Unchanged;
    }
    target = value;
    return StyleSet_Ok;
}

bool isInRange(const StyleLeaf& leaf, double value) {
    return std::isfinite(value) && value >= leaf.minimum && value <= leaf.maximum;
}

/// Writes one value by the type of its target.
struct Writer {
    const StyleLeaf& leaf;
    const StyleInput& input;

    StyleSetResult_e operator()(bool* target) const {
        const long* value = std::get_if<long>(&input);
        return value == nullptr ? StyleSet_BadValue : assign(*target, *value != 0);
    }
    StyleSetResult_e operator()(int* target) const {
        const long* value = std::get_if<long>(&input);
        if (value == nullptr || !std::in_range<int>(*value) ||
            !isInRange(leaf, static_cast<double>(*value))) {
            return StyleSet_BadValue;
        }
        return assign(*target, static_cast<int>(*value));
    }
    StyleSetResult_e operator()(double* target) const {
        const double* value = std::get_if<double>(&input);
        if (value == nullptr || !isInRange(leaf, *value)) {
            return StyleSet_BadValue;
        }
        return assign(*target, *value);
    }
    StyleSetResult_e operator()(std::string* target) const {
        const std::string* value = std::get_if<std::string>(&input);
        if (value == nullptr || (leaf.accepts && !leaf.accepts(*value))) {
            return StyleSet_BadValue;
        }
        if (leaf.choices.empty()) {
            return assign(*target, *value);
        }
        const auto choice =
            std::find_if(leaf.choices.begin(), leaf.choices.end(),
                         [value](const std::string& c) { return equalIgnoringCase(c, *value); });
        return choice == leaf.choices.end() ? StyleSet_BadValue : assign(*target, *choice);
    }
};

struct Reader {
    StyleInput operator()(const bool* target) const { return *target ? 1L : 0L; }
    StyleInput operator()(const int* target) const { return static_cast<long>(*target); }
    StyleInput operator()(const double* target) const { return *target; }
    StyleInput operator()(const std::string* target) const { return *target; }
};

} // namespace

void StyleTree::bind(StyleLeaf leaf) {
    const Key key(leaf.path);
    if (!key.isValid() || !m_index.try_emplace(std::string(key.text()), m_leaves.size()).second) {
        throw std::logic_error("The style path " + toString(leaf.path) + " cannot be bound.");
    }
    m_leaves.push_back(std::move(leaf));
}

void StyleTree::unbind(const std::string& firstKeyword) {
    std::erase_if(m_leaves, [&firstKeyword](const StyleLeaf& leaf) {
        return equalIgnoringCase(leaf.path.front(), firstKeyword);
    });
    rebuildIndex();
}

void StyleTree::rebuildIndex() {
    m_index.clear();
    for (std::size_t i = 0; i < m_leaves.size(); ++i) {
        m_index.emplace(Key(m_leaves[i].path).text(), i);
    }
}

bool StyleTree::contains(const StylePath& path) const {
    return find(path) != nullptr;
}

StyleSetResult_e StyleTree::set(const StylePath& path, const StyleInput& value) {
    const StyleLeaf* leaf = find(path);
    return leaf == nullptr ? StyleSet_BadPath : set(*leaf, value);
}

StyleSetResult_e StyleTree::set(const StyleLeaf& leaf, const StyleInput& value) {
    if (leaf.isAllowed && !leaf.isAllowed()) {
        return StyleSet_NotAllowed;
    }
    return std::visit(Writer{leaf, value}, leaf.target);
}

bool StyleTree::restore(const StyleLeaf& leaf, const StyleInput& value) {
    if (std::visit(Writer{leaf, value}, leaf.target) == StyleSet_BadValue) {
        return false;
    }
    // Zero and minus zero count as equal when they are set, and are restored as they were.
    if (double* const* const number = std::get_if<double*>(&leaf.target)) {
        **number = std::get<double>(value);
    }
    return true;
}

std::optional<StyleInput> StyleTree::get(const StylePath& path) const {
    const StyleLeaf* leaf = find(path);
    return leaf == nullptr ? std::nullopt : std::optional(get(*leaf));
}

StyleInput StyleTree::get(const StyleLeaf& leaf) {
    return std::visit(Reader{}, leaf.target);
}

const StyleLeaf* StyleTree::find(const StylePath& path) const {
    return leafAt(path);
}

const StyleLeaf* StyleTree::find(StyleKeywords path) const {
    return leafAt(path);
}

template <class Path>
const StyleLeaf* StyleTree::leafAt(const Path& path) const {
    const Key key(path);
    if (!key.isValid()) {
        return nullptr;
    }
    const auto found = m_index.find(key.text());
    return found == m_index.end() ? nullptr : &m_leaves[found->second];
}

std::string toString(const StylePath& path) {
    std::string text;
    for (const std::string& keyword : path) {
        if (!text.empty()) {
            text += separator;
        }
        text += keyword;
    }
    return text;
}

StylePath stylePathFromString(const std::string& text) {
    StylePath path;
    std::size_t begin = 0;
    while (begin <= text.size()) {
        const std::size_t end = std::min(text.find(separator, begin), text.size());
        path.push_back(text.substr(begin, end - begin));
        begin = end + 1;
    }
    return path;
}

} // namespace corvane::host
