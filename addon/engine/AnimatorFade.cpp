// A picture that comes out of black and goes back into it.
#include "addon/engine/AnimatorFade.h"

namespace corvane::corutiltools {

namespace {

// A tenth of a short flight, a second of a long one. The jump between 90 and 91 frames is
// deliberate.
unsigned long fadeLength(unsigned long totalFrames) {
    return totalFrames <= 90 ? totalFrames / 10 : 30;
}

} // namespace

AnimatorFade::AnimatorFade(const std::vector<KeyFrame_s>& keyFrames, const Settings_s& settings,
                           AnimatorAbstract* inner)
    : AnimatorAbstract(keyFrames, inner),
      m_lightSource("GlobalThreeD", "LightSource"),
      m_orientationAxis("ThreeDAxis", "FrameAxis") {
    const unsigned long length = fadeLength(numTotalFrames());
    m_fadeInFrameCount = settings.fadeIn ? length : 0;
    m_fadeOutFrameCount = settings.fadeOut ? length : 0;
    m_lightSource.getDouble(m_savedIntensity, "Intensity");
    m_lightSource.getDouble(m_savedBackgroundLight, "BackgroundLight");
    m_orientationAxis.getBoolean(m_savedAxisShow, "Show");
    m_orientationAxis.setBoolean(false, "Show");
}

// Both accessors are members, as making one allocates.
AnimatorFade::~AnimatorFade() {
    setLight(1.0);
    m_orientationAxis.setBoolean(m_savedAxisShow, "Show");
}

// The two ramps are deliberately no mirror images: the way in has one frame more and ends at full
// light, the way out ends in the dark and has no frame at full light. Where they meet, the way in
// wins.
void AnimatorFade::drawFrameAtIndex(unsigned long index) {
    if (m_fadeInFrameCount > 0 && index <= m_fadeInFrameCount) {
        setLight(static_cast<double>(index) / static_cast<double>(m_fadeInFrameCount));
    } else if (m_fadeOutFrameCount > 0 && index >= numTotalFrames() - m_fadeOutFrameCount) {
        setLight(static_cast<double>(numTotalFrames() - 1 - index) /
                 static_cast<double>(m_fadeOutFrameCount));
    }
}

void AnimatorFade::setLight(double fraction) {
    m_lightSource.set(fraction * m_savedIntensity, "Intensity");
    m_lightSource.set(fraction * m_savedBackgroundLight, "BackgroundLight");
}

} // namespace corvane::corutiltools
