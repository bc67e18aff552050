// Style values by path.
#include "hostapi/CorStyle.h"

#include "host/api/ArgumentList.h"
#include "host/api/TracedCall.h"
#include "host/core/base/SecondTry.h"

#include <optional>

using namespace corvane::host;

namespace {

constexpr int longestPath = 8;

StylePath pathOf(const CorArgList_s& args) {
    StylePath path;
    for (int depth = 1; depth <= longestPath; ++depth) {
        const auto* const keyword = args.find<std::string>("Path" + std::to_string(depth));
        if (!keyword) {
            break;
        }
        path.push_back(*keyword);
    }
    return path;
}

/// The argument that a value of this kind takes: callers may send several, such as a boolean both
/// as an integer and as a number.
std::optional<StyleInput> inputLike(const StyleInput& kind, const CorArgList_s& args) {
    if (std::holds_alternative<long>(kind)) {
        const int* const value = args.find<int>("IValue");
        return value ? std::optional<StyleInput>(static_cast<long>(*value)) : std::nullopt;
    }
    if (std::holds_alternative<double>(kind)) {
        const double* const value = args.find<double>("DValue");
        return value ? std::optional<StyleInput>(*value) : std::nullopt;
    }
    const auto* const value = args.find<std::string>("SValue");
    return value ? std::optional<StyleInput>(*value) : std::nullopt;
}

StyleSetResult_e setByPathOnce(Session& session, const CorArgList_s& args) {
    const StylePath path = pathOf(args);
    StyleInput present;
    switch (session.getStyle(path, present)) {
    case StyleGet_Ok: {
        const std::optional<StyleInput> input = inputLike(present, args);
        return input ? session.setStyle(path, *input) : StyleSet_BadValue;
    }
    case StyleGet_NotAvailable:
        return StyleSet_NotAllowed;
    default:
        return StyleSet_BadPath;
    }
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

StyleGetResult_e getByPathOnce(Session& session, const CorArgList_s& args) {
    StyleInput value;
    const StyleGetResult_e result = session.getStyle(pathOf(args), value);
    return result != StyleGet_Ok || deliver(value, args) ? result : StyleGet_NotAvailable;
}

/// Add-ons keep by it what they are going to change.
StyleGetResult_e getByPath(Session& session, const CorArgList_s& args) {
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
