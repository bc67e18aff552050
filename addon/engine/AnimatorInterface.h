// What the driver knows of a chain of animators.
#pragma once

namespace corvane::corutiltools {

class AnimatorInterface {
public:
    AnimatorInterface() = default;

    // Produces one frame of the animation. Frames are numbered over the whole flight, from 0.
    virtual void drawFrame(unsigned long frameIndex) = 0;

    // The user stopped the animation.
    virtual void cancelAnimation() = 0;

    virtual ~AnimatorInterface() = default;

    AnimatorInterface(const AnimatorInterface&) = delete;
    AnimatorInterface& operator=(const AnimatorInterface&) = delete;
};

} // namespace corvane::corutiltools
