// Points as style values and macros write them: "x y z; x y z".
#pragma once

#include "host/core/page/Vec3.h"

#include <charconv>
#include <cmath>
#include <cstddef>
#include <optional>
#include <string_view>
#include <system_error>
#include <vector>

namespace corvane::host {

/// More than anybody writes by hand.
inline constexpr std::size_t mostListedPoints = 10000;

namespace detail {

inline std::string_view withoutLeadingBlanks(std::string_view text) {
    const std::size_t begin = text.find_first_not_of(" \t");
    return begin == std::string_view::npos ? std::string_view() : text.substr(begin);
}

/// Takes one number from the front of the text; it ends at a blank or with the text.
inline bool takeNumber(std::string_view& text, double& number) {
    text = withoutLeadingBlanks(text);
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || !std::isfinite(number)) {
        return false;
    }
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return text.empty() || text.front() == ' ' || text.front() == '\t';
}

inline std::optional<Vec3> pointFromText(std::string_view text) {
    Vec3 point;
    if (takeNumber(text, point.x) && takeNumber(text, point.y) && takeNumber(text, point.z) &&
        withoutLeadingBlanks(text).empty()) {
        return point;
    }
    return std::nullopt;
}

} // namespace detail

/// Three finite numbers a point, separated by blanks, and a semicolon between points: "1 0 2.5;
/// 1 0.5 2.5". A blank text holds no points. Nothing for any other text, and for more than
/// mostListedPoints.
inline std::optional<std::vector<Vec3>> pointsFromText(std::string_view text) {
    std::vector<Vec3> points;
    if (detail::withoutLeadingBlanks(text).empty()) {
        return points;
    }
    while (points.size() < mostListedPoints) {
        const std::size_t end = text.find(';');
        const std::optional<Vec3> point = detail::pointFromText(text.substr(0, end));
        if (!point) {
            return std::nullopt;
        }
        points.push_back(*point);
        if (end == std::string_view::npos) {
            return points;
        }
        text.remove_prefix(end + 1);
    }
    return std::nullopt;
}

} // namespace corvane::host
