// Puts the chain of animators of one flight together.
#include "addon/engine/AnimatorAbstractFactory.h"

#include "addon/engine/AnimatorFade.h"
#include "addon/engine/AnimatorKeyFrame.h"
#include "addon/engine/AnimatorOnScreen.h"
#include "addon/engine/AnimatorStreams.h"
#include "addon/engine/AnimatorTime.h"
#include "addon/engine/AnimatorToFile.h"

#include <memory>

namespace corvane::corutiltools {

namespace {

using Chain = std::unique_ptr<AnimatorAbstract>;

Chain innermost(const std::vector<KeyFrame_s>& keyFrames, Destination_e destination) {
    if (destination == Destination_OnScreen) {
        return std::make_unique<AnimatorOnScreen>(keyFrames, nullptr);
    }
    return std::make_unique<AnimatorToFile>(keyFrames);
}

} // namespace

AnimatorAbstractFactory::~AnimatorAbstractFactory() = default;

// A plain new, not std::make_unique: it has its memory before it takes the chain, and from then on
// the animator owns the chain even if its construction fails. So nothing can get lost in between.
AnimatorInterface* AnimatorAbstractFactory::createAnimator(const std::vector<KeyFrame_s>& keyFrames,
                                                           const Settings_s& settings) {
    Chain chain = innermost(keyFrames, settings.destination);
    if (settings.timeOptions.animateTime) {
        chain.reset(new AnimatorTime(keyFrames, settings.timeOptions, chain.release()));
    }
    if (settings.animateStreamtraces) {
        chain.reset(new AnimatorStreams(keyFrames, chain.release()));
    }
    if (settings.fadeIn || settings.fadeOut) {
        chain.reset(new AnimatorFade(keyFrames, settings, chain.release()));
    }
    return new AnimatorKeyFrame(keyFrames, chain.release());
}

} // namespace corvane::corutiltools
