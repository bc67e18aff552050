// Addresses values by paths of keywords: the one way in for add-ons and macros.
#pragma once

#include "hostapi/CorEnums.h"

#include <functional>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <variant>
#include <vector>

namespace corvane::host {

/// A path of keywords, "ThreeDView" "ViewerPosition" "X". Letter case (ASCII) is ignored.
using StylePath = std::vector<std::string>;

/// The same, of keywords that live elsewhere.
using StyleKeywords = std::span<const std::string_view>;

/// A value on its way in or out. Integers carry booleans too (0 and 1).
using StyleInput = std::variant<long, double, std::string>;

/// What kind of change a write is, since the host announces and draws them differently.
enum class StyleEffect { View, Picture, None };

struct StyleLeaf {
    StylePath path; ///< as it is written in macros
    std::variant<bool*, int*, double*, std::string*> target;
    double minimum = -std::numeric_limits<double>::max(); ///< numbers outside are refused
    double maximum = std::numeric_limits<double>::max();
    StyleEffect effect = StyleEffect::Picture;
    std::function<bool()> isAllowed;                 ///< empty: always
    std::string needs;                               ///< what isAllowed asks for, as a sentence
    std::vector<std::string> choices;                ///< texts a text leaf may take; empty: any
    std::function<bool(const std::string&)> accepts; ///< asked before a text is written; empty: any
};

/// An index from paths to values that live elsewhere, in plain structs. The structs must outlive
/// the tree and stay where they are.
class StyleTree {
public:
    /// A path is bound once; keywords hold no '/'.
    void bind(StyleLeaf leaf);
    /// Forgets all leaves whose path starts with this keyword.
    void unbind(const std::string& firstKeyword);

    bool contains(const StylePath& path) const;

    /// StyleSet_BadPath: no such leaf. StyleSet_NotAllowed: the value cannot be set in this state.
    /// StyleSet_BadValue: wrong type, not finite or out of range. StyleSet_Unchanged: it was so.
    /// The value changes for StyleSet_Ok only. Integer and boolean leaves take an integer (any but
    /// 0 is true), others take their own type. Texts of StyleLeaf::choices compare without regard
    /// to letter case and are stored as they are listed there.
    StyleSetResult_e set(const StylePath& path, const StyleInput& value);
    /// The same for a leaf that find() gave.
    static StyleSetResult_e set(const StyleLeaf& leaf, const StyleInput& value);

    /// Writes a value that was read from such a leaf before, whether or not it could be set in this
    /// state. False for one that the leaf can never have had.
    static bool restore(const StyleLeaf& leaf, const StyleInput& value);

    /// The value, or nothing when there is no such leaf. Booleans arrive as 0 and 1.
    std::optional<StyleInput> get(const StylePath& path) const;
    static StyleInput get(const StyleLeaf& leaf);

    /// Valid until something is bound or unbound; null without such a leaf.
    const StyleLeaf* find(const StylePath& path) const;
    const StyleLeaf* find(StyleKeywords path) const;
    const std::vector<StyleLeaf>& leaves() const { return m_leaves; } ///< in order of binding

private:
    /// Lets find() look up a key that it built without allocating.
    struct KeyHash {
        using is_transparent = void;
        std::size_t operator()(std::string_view key) const {
            return std::hash<std::string_view>{}(key);
        }
    };

    void rebuildIndex();
    template <class Path>
    const StyleLeaf* leafAt(const Path& path) const;

    std::vector<StyleLeaf> m_leaves;
    /// From the lower-case path, joined.
    std::unordered_map<std::string, std::size_t, KeyHash, std::equal_to<>> m_index;
};

/// The path as macros write it: keywords joined by '/'.
std::string toString(const StylePath& path);
StylePath stylePathFromString(const std::string& text);

} // namespace corvane::host
