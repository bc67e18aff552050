// Reverse order of characters without regard to letter case.
#pragma once

#include "addon/base/CaseInsensitiveCharLess.h"

namespace corvane::corutiltools {

// The mirror of CaseInsensitiveCharLess.
struct CaseInsensitiveCharGreater {
    bool operator()(char left, char right) const { return CaseInsensitiveCharLess()(right, left); }
};

} // namespace corvane::corutiltools
