// The base of all animators: one link of a chain.
#pragma once

#include "addon/engine/AnimatorInterface.h"
#include "addon/model/Records.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace corvane::corutiltools {

// Each animator adds one effect to a frame and then hands the frame to the next one; the last one
// of a chain brings it to the screen or into a file. An animator puts back what it changed in the
// host when it is destroyed, and takes the rest of the chain with it.
class AnimatorAbstract : public virtual AnimatorInterface {
public:
    // Takes over next, which may be null, also when the construction fails, here or in a derived
    // class. Throws KeyFrameError for fewer than two key frames.
    AnimatorAbstract(const std::vector<KeyFrame_s>& keyFrames, AnimatorAbstract* next);

    // First this animator's own share of the frame, then the rest of the chain.
    void drawFrame(unsigned long frameIndex) override;

    // Tells the rest of the chain.
    void cancelAnimation() override;

    ~AnimatorAbstract() override;

    // This animator's own share of the work for one frame.
    virtual void drawFrameAtIndex(unsigned long frameIndex) = 0;

    // Frames of the flight through all key frames.
    unsigned long numTotalFrames() const { return m_totalFrames; }

protected:
    // Throws KeyFrameError when there are fewer than two.
    static void requireTwoKeyFrames(std::size_t count);

private:
    std::unique_ptr<AnimatorAbstract> m_next;
    unsigned long m_totalFrames = 0;
};

} // namespace corvane::corutiltools
