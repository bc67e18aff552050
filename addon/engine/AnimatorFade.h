// A picture that comes out of black and goes back into it.
#pragma once

#include "addon/engine/AnimatorAbstract.h"
#include "hostapi/CorHost.h"

namespace corvane::corutiltools {

// Scales the host's light over the first and the last frames and hides the orientation axis, which
// no light reaches, for the whole flight. Puts light and axis back when it is destroyed; a host
// failing there ends the program, as a destructor must not throw.
class AnimatorFade : public AnimatorAbstract {
public:
    AnimatorFade(const std::vector<KeyFrame_s>& keyFrames, const Settings_s& settings,
                 AnimatorAbstract* inner);
    ~AnimatorFade() override;

    // Sets the light of a frame that belongs to a fade; a frame between the fades keeps the light
    // it has. Flights too short for a fade keep theirs throughout.
    void drawFrameAtIndex(unsigned long index) override;

private:
    void setLight(double fraction);

    unsigned long m_fadeInFrameCount = 0;
    unsigned long m_fadeOutFrameCount = 0;
    double m_savedIntensity = 0.0;
    double m_savedBackgroundLight = 0.0;
    bool m_savedAxisShow = false;
    toolbox::StyleValue m_lightSource;
    toolbox::StyleValue m_orientationAxis;
};

} // namespace corvane::corutiltools
