// Order of keywords without regard to letter case.
#pragma once

#include "addon/base/CaseInsensitiveCharLess.h"

#include <algorithm>
#include <string_view>

namespace corvane::corutiltools {

// Orders the maps of keywords. Transparent, so that a lookup needs no copy of the word.
struct CaseInsensitiveStringCompareObj {
    using is_transparent = void;

    bool operator()(std::string_view left, std::string_view right) const {
        return std::lexicographical_compare(left.begin(), left.end(), right.begin(), right.end(),
                                            CaseInsensitiveCharLess());
    }
};

} // namespace corvane::corutiltools
