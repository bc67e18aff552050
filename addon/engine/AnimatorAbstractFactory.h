// Puts the chain of animators of one flight together.
#pragma once

#include "addon/engine/AnimatorInterface.h"
#include "addon/model/Records.h"

#include <vector>

namespace corvane::corutiltools {

class AnimatorAbstractFactory {
public:
    AnimatorAbstractFactory() = default;
    virtual ~AnimatorAbstractFactory();

    // The head of a new chain, owned by the caller: view, light, streamtraces, solution time, and
    // last the screen or the file, with only the effects that the settings ask for. What the
    // constructors of the animators throw passes through, and nothing of the chain is left then.
    AnimatorInterface* createAnimator(const std::vector<KeyFrame_s>& keyFrames,
                                      const Settings_s& settings);
};

} // namespace corvane::corutiltools
