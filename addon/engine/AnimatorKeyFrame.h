// The flight itself: the view of every frame.
#pragma once

#include "addon/engine/AnimatorAbstract.h"

namespace corvane::corutiltools {

// Computes all views when it is made, by moving the host's camera step by step and reading it back,
// so that a frame costs one View::apply. The host carries the viewer about its rotation origin as
// it turns; that is what makes a turn between two views an orbit and not a straight line.
class AnimatorKeyFrame : public AnimatorAbstract {
public:
    // Throws KeyFrameError for fewer than two key frames and when the user stops the computation.
    AnimatorKeyFrame(const std::vector<KeyFrame_s>& keyFrames, AnimatorAbstract* inner);
    ~AnimatorKeyFrame() override;

    // Applies the view of the frame. Throws std::out_of_range for a frame without view, and applies
    // nothing then.
    void drawFrameAtIndex(unsigned long index) override;

    // The views of all frames in order.
    const std::vector<View>& views() const { return m_views; }

    // Computes the views of all frames anew: every view that has a frame count of its own, each
    // followed by the steps to the next one, and the last view. Throws as the constructor does.
    void buildViewList(const std::vector<View>& views,
                       const std::vector<unsigned long>& frameCounts);

private:
    std::vector<View> m_views;
};

} // namespace corvane::corutiltools
