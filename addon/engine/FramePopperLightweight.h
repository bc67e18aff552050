// A walk over the page that changes nothing on it.
#pragma once

#include "addon/engine/FramePopperAbstract.h"

namespace corvane::corutiltools {

// Every frame becomes the one that queries speak of, without redraw, state change or restacking.
class FramePopperLightweight : public FramePopperAbstract {
public:
    FramePopperLightweight();
    ~FramePopperLightweight() override;

    bool next() override;
};

} // namespace corvane::corutiltools
