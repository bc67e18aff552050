// The text of calls in the trace.
#pragma once

#include "hostapi/CorTypes.h"

#include <string>
#include <type_traits>

namespace corvane::host {

/// TRUE or FALSE.
void appendTruth(std::string& text, bool value);
/// The shortest text that reads back as the same number.
void appendNumber(std::string& text, double value);
/// In quotes, or NULL.
void appendQuoted(std::string& text, const char* value);
/// The add-on's name in quotes, NULL, or "unknown" when the host never gave this id away.
void appendAddOn(std::string& text, CorAddOnID value);
/// The keywords of a path alone, all others with their name:
/// "ThreeDView","ViewWidth", DValue=1.5
void appendArgumentList(std::string& text, CorArgList value);

/// One argument or result.
template <class T>
void appendValue(std::string& text, T value) {
    if constexpr (std::is_same_v<T, bool>) {
        appendTruth(text, value);
    } else if constexpr (std::is_integral_v<T> || std::is_enum_v<T>) {
        text += std::to_string(static_cast<long>(value));
    } else if constexpr (std::is_floating_point_v<T>) {
        appendNumber(text, value);
    } else if constexpr (std::is_same_v<T, const char*>) {
        appendQuoted(text, value);
    } else if constexpr (std::is_same_v<T, CorAddOnID>) {
        appendAddOn(text, value);
    } else if constexpr (std::is_same_v<T, CorArgList>) {
        appendArgumentList(text, value);
    } else {
        static_assert(std::is_pointer_v<T>);
        text += value ? "non-null" : "NULL";
    }
}

} // namespace corvane::host
