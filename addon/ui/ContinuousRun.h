// Whether indices follow each other.
#pragma once

#include <algorithm>
#include <vector>

namespace corvane::corutiltools {

// Whether each index is the one before it plus 1; true for fewer than two indices.
inline bool isContinuousRun(const std::vector<unsigned long>& indices) {
    const auto isGap = [](unsigned long left, unsigned long right) { return right != left + 1; };
    return std::adjacent_find(indices.begin(), indices.end(), isGap) == indices.end();
}

} // namespace corvane::corutiltools
