// Makes frame poppers.
#pragma once

#include "addon/engine/FramePopperAbstract.h"

#include <memory>

namespace corvane::corutiltools {

class FramePopperAbstractFactory {
public:
    // A popper that activates every frame, or else one that only lets them be queried.
    std::unique_ptr<FramePopperAbstract> getFramePopper(bool full) const;
};

} // namespace corvane::corutiltools
