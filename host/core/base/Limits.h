// What pictures and movies may be asked for: the ranges that users, macros and add-ons meet.
#pragma once

#include "host/core/base/Text.h"

#include <string>

namespace corvane::host {

/// Both ends belong to it.
template <typename Number>
struct Range {
    Number least;
    Number most;

    /// False also for what is no number.
    constexpr bool contains(Number number) const { return number >= least && number <= most; }
};

/// "0.001 to 200"
template <typename Number>
std::string rangeText(const Range<Number>& range) {
    return exactText(range.least) + " to " + exactText(range.most);
}

namespace limits {

/// Pixels of a finished picture in each direction; supersampling comes on top.
inline constexpr Range<int> pictureSide{4, 32766};
inline constexpr Range<double> framesPerSecond{0.001, 200.0};
/// How many times larger in each direction a picture is drawn before it is filtered down, where
/// that is done at all.
inline constexpr Range<int> supersampling{2, 16};
/// The same where 1 stands for no supersampling.
inline constexpr Range<int> supersamplingOrNone{1, supersampling.most};

} // namespace limits

} // namespace corvane::host
