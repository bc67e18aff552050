// The end of a chain that plays on screen.
#pragma once

#include "addon/engine/AnimatorAbstract.h"

namespace corvane::corutiltools {

class AnimatorOnScreen : public AnimatorAbstract {
public:
    AnimatorOnScreen(const std::vector<KeyFrame_s>& keyFrames, AnimatorAbstract* next);
    ~AnimatorOnScreen() override;

    // Shows the plot as the rest of the chain has set it up.
    void drawFrameAtIndex(unsigned long frameIndex) override;
};

} // namespace corvane::corutiltools
