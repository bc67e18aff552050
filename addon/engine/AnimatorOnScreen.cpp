// The end of a chain that plays on screen.
#include "addon/engine/AnimatorOnScreen.h"

#include "hostapi/CorHost.h"

namespace corvane::corutiltools {

AnimatorOnScreen::AnimatorOnScreen(const std::vector<KeyFrame_s>& keyFrames, AnimatorAbstract* next)
    : AnimatorAbstract(keyFrames, next) {}

AnimatorOnScreen::~AnimatorOnScreen() = default;

void AnimatorOnScreen::drawFrameAtIndex(unsigned long /*frameIndex*/) {
    CorUtilRedraw(TRUE);
}

} // namespace corvane::corutiltools
