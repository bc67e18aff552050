// Makes frame poppers.
#include "addon/engine/FramePopperAbstractFactory.h"

#include "addon/engine/FramePopper.h"
#include "addon/engine/FramePopperLightweight.h"

namespace corvane::corutiltools {

std::unique_ptr<FramePopperAbstract> FramePopperAbstractFactory::getFramePopper(bool full) const {
    if (full) {
        return std::make_unique<FramePopper>();
    }
    return std::make_unique<FramePopperLightweight>();
}

} // namespace corvane::corutiltools
