// One flight: its chain of animators and the frames to play.
#pragma once

#include "addon/engine/AnimatorInterface.h"
#include "addon/model/Records.h"

#include <memory>
#include <vector>

namespace corvane::corutiltools {

// The chain always covers the whole flight, and frames keep their numbers in it, also when only a
// range of it is played.
class AnimationManager {
public:
    // Plays everything if count is the number of key frames, otherwise from key frame startIndex up
    // to and including key frame startIndex + count. Throws what the animators throw, and
    // std::out_of_range for a range beyond the list.
    AnimationManager(const std::vector<KeyFrame_s>& keyFrames, unsigned long startIndex,
                     unsigned long count, const Settings_s& settings);
    virtual ~AnimationManager();

    AnimationManager(const AnimationManager&) = delete;
    AnimationManager& operator=(const AnimationManager&) = delete;

    bool hasNextFrame() const;
    void drawNextFrame();

    // Steps of the percent-done display: deliberately one more than the frames that are drawn, so
    // that the display ends just below 100 percent.
    unsigned long numFrames() const;

    void cancelAnimation();

private:
    unsigned long m_firstFrame = 0;
    unsigned long m_endFrame = 0;
    unsigned long m_currentFrame = 0;
    std::unique_ptr<AnimatorInterface> m_animator;
};

} // namespace corvane::corutiltools
