// Style values by path.
#include "hostapi/CorStyle.h"

#include "host/api/ArgumentList.h"
#include "host/api/TracedCall.h"
#include "host/core/base/SecondTry.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

using namespace corvane::host;

namespace {

/// The keywords of a path, which live in the list.
class PathWords {
public:
    explicit PathWords(const CorArgList_s& args) {
        for (const char* const name : names) {
            const auto* const keyword = args.find<std::string>(name);
            if (!keyword) {
                break;
            }
            m_words[m_count++] = *keyword;
        }
    }

    StyleKeywords words() const { return {m_words.data(), m_count}; }

private:
    static constexpr std::array names{"Path1", "Path2", "Path3", "Path4",
                                      "Path5", "Path6", "Path7", "Path8"};

    std::array<std::string_view, names.size()> m_words;
    std::size_t m_count = 0;
};

/// Null without a frame that has styles.
const StyleTree* stylesFor(const Session& session, const PathWords& path) {
    return session.stylesFor(path.words().empty() ? std::string_view() : path.words().front());
}

/// The argument that a value takes: callers may send several, such as a boolean both as an integer
/// and as a number.
struct InputFor {
    const CorArgList_s& args;

    std::optional<StyleInput> operator()(const bool*) const { return integer(); }
    std::optional<StyleInput> operator()(const int*) const { return integer(); }
    std::optional<StyleInput> operator()(const double*) const {
        const double* const value = args.find<double>("DValue");
        return value ? std::optional<StyleInput>(*value) : std::nullopt;
    }
    std::optional<StyleInput> operator()(const std::string*) const {
        const auto* const value = args.find<std::string>("SValue");
        return value ? std::optional<StyleInput>(*value) : std::nullopt;
    }

private:
    std::optional<StyleInput> integer() const {
        const int* const value = args.find<int>("IValue");
        return value ? std::optional<StyleInput>(static_cast<long>(*value)) : std::nullopt;
    }
};

StyleSetResult_e setByPathOnce(Session& session, const CorArgList_s& args) {
    const PathWords path(args);
    const StyleTree* const styles = stylesFor(session, path);
    if (!styles) {
        return StyleSet_NotAllowed;
    }
    const StyleLeaf* const leaf = styles->find(path.words());
    if (!leaf) {
        return StyleSet_BadPath;
    }
    const std::optional<StyleInput> input = std::visit(InputFor{args}, leaf->target);
    return input ? session.setStyle(*leaf, *input) : StyleSet_BadValue;
}

/// Add-ons put back by it what they have changed.
StyleSetResult_e setByPath(Session& session, const CorArgList_s& args) {
    return withSecondTry([&] { return setByPathOnce(session, args); });
}

/// False when the caller left no room for a value of this kind.
bool deliver(const StyleInput& value, const CorArgList_s& args) {
    if (const long* const integer = std::get_if<long>(&value)) {
        if (int* const* const result = args.find<int*>("IValue")) {
            **result = static_cast<int>(*integer);
            return true;
        }
    }
    if (const double* const number = std::get_if<double>(&value)) {
        if (double* const* const result = args.find<double*>("DValue")) {
            **result = *number;
            return true;
        }
    }
    return false;
}

StyleGetResult_e getByPathOnce(const Session& session, const CorArgList_s& args) {
    const PathWords path(args);
    const StyleTree* const styles = stylesFor(session, path);
    if (!styles) {
        return StyleGet_NotAvailable;
    }
    const StyleLeaf* const leaf = styles->find(path.words());
    if (!leaf) {
        return StyleGet_BadPath;
    }
    return deliver(StyleTree::get(*leaf), args) ? StyleGet_Ok : StyleGet_NotAvailable;
}

/// Add-ons keep by it what they are going to change.
StyleGetResult_e getByPath(const Session& session, const CorArgList_s& args) {
    return withSecondTry([&] { return getByPathOnce(session, args); });
}

} // namespace

int CorUtilStyleSet(CorArgList args) {
    const TracedCall call("CorUtilStyleSet", args);
    return call.answer(int(StyleSet_NotAllowed), [&](Session& session) -> int {
        if (!known(args)) {
            call.misuse("args is no list of arguments");
            return StyleSet_BadPath;
        }
        return setByPath(session, *args);
    });
}

int CorUtilStyleGet(CorArgList args) {
    const TracedCall call("CorUtilStyleGet", args);
    return call.answer(int(StyleGet_NotAvailable), [&](Session& session) -> int {
        if (!known(args)) {
            call.misuse("args is no list of arguments");
            return StyleGet_BadPath;
        }
        return getByPath(session, *args);
    });
}
