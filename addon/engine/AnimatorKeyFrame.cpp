// The flight itself: the view of every frame.
#include "addon/engine/AnimatorKeyFrame.h"

#include "addon/base/KeyFrameError.h"
#include "addon/engine/Status.h"
#include "addon/engine/ViewStep.h"
#include "addon/model/Utilities.h"

namespace corvane::corutiltools {

AnimatorKeyFrame::AnimatorKeyFrame(const std::vector<KeyFrame_s>& keyFrames,
                                   AnimatorAbstract* inner)
    : AnimatorAbstract(keyFrames, inner) {
    std::vector<View> views;
    ExtractViews(keyFrames, views);
    std::vector<unsigned long> frameCounts;
    ExtractFrameCounts(keyFrames, frameCounts);
    buildViewList(views, frameCounts);
}

AnimatorKeyFrame::~AnimatorKeyFrame() = default;

void AnimatorKeyFrame::drawFrameAtIndex(unsigned long index) {
    m_views.at(index).apply();
}

void AnimatorKeyFrame::buildViewList(const std::vector<View>& views,
                                     const std::vector<unsigned long>& frameCounts) {
    requireTwoKeyFrames(views.size());
    m_views.clear();
    m_views.reserve(numTotalFrames());
    Status status(static_cast<double>(numTotalFrames()), "Creating interpolated views....");
    for (std::size_t i = 1; i < views.size(); ++i) {
        // A segment without frames shows nothing, not even the view that it starts from.
        if (frameCounts[i - 1] == 0) {
            continue;
        }
        m_views.push_back(views[i - 1]);
        for (unsigned long toGo = frameCounts[i - 1]; toGo > 1; --toGo) {
            m_views.push_back(StepTowards(m_views.back(), views[i], static_cast<double>(toGo)));
            ++status;
            if (status.isCanceled()) {
                throw KeyFrameError("Animation canceled.");
            }
        }
    }
    m_views.push_back(views.back());
}

} // namespace corvane::corutiltools
