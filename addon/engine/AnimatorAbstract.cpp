// The base of all animators: one link of a chain.
#include "addon/engine/AnimatorAbstract.h"

#include "addon/base/KeyFrameError.h"
#include "addon/model/Utilities.h"

namespace corvane::corutiltools {

AnimatorAbstract::AnimatorAbstract(const std::vector<KeyFrame_s>& keyFrames, AnimatorAbstract* next)
    : m_next(next) {
    requireTwoKeyFrames(keyFrames.size());
    m_totalFrames = GetTotalFrameCount(keyFrames);
}

AnimatorAbstract::~AnimatorAbstract() = default;

void AnimatorAbstract::drawFrame(unsigned long frameIndex) {
    drawFrameAtIndex(frameIndex);
    if (m_next) {
        m_next->drawFrame(frameIndex);
    }
}

void AnimatorAbstract::cancelAnimation() {
    if (m_next) {
        m_next->cancelAnimation();
    }
}

void AnimatorAbstract::requireTwoKeyFrames(std::size_t count) {
    if (count < 2) {
        throw KeyFrameError(
            "At least two keyFrame views must be established to perform an animation.");
    }
}

} // namespace corvane::corutiltools
