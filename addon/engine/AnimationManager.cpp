// One flight: its chain of animators and the frames to play.
#include "addon/engine/AnimationManager.h"

#include "addon/engine/AnimatorAbstractFactory.h"
#include "addon/model/Utilities.h"

namespace corvane::corutiltools {

namespace {

// Frames of the key frames in [first, end).
unsigned long sumOfFrameCounts(const std::vector<KeyFrame_s>& keyFrames, unsigned long first,
                               unsigned long end) {
    unsigned long sum = 0;
    for (unsigned long i = first; i < end; ++i) {
        sum += keyFrames.at(i).frameCount;
    }
    return sum;
}

} // namespace

AnimationManager::AnimationManager(const std::vector<KeyFrame_s>& keyFrames,
                                   unsigned long startIndex, unsigned long count,
                                   const Settings_s& settings)
    : m_animator(AnimatorAbstractFactory().createAnimator(keyFrames, settings)) {
    if (count == keyFrames.size()) {
        m_endFrame = GetTotalFrameCount(keyFrames);
    } else {
        m_firstFrame = sumOfFrameCounts(keyFrames, 0, startIndex);
        m_endFrame = m_firstFrame + 1 + sumOfFrameCounts(keyFrames, startIndex, startIndex + count);
    }
    m_currentFrame = m_firstFrame;
}

AnimationManager::~AnimationManager() = default;

bool AnimationManager::hasNextFrame() const {
    return m_currentFrame != m_endFrame;
}

void AnimationManager::drawNextFrame() {
    m_animator->drawFrame(m_currentFrame);
    ++m_currentFrame;
}

unsigned long AnimationManager::numFrames() const {
    return m_endFrame + 1 - m_firstFrame;
}

void AnimationManager::cancelAnimation() {
    m_animator->cancelAnimation();
}

} // namespace corvane::corutiltools
