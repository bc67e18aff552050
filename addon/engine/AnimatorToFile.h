// The end of a chain that goes into an animation file.
#pragma once

#include "addon/engine/AnimatorAbstract.h"

namespace corvane::corutiltools {

// Drives the host's export: the first frame drawn opens it, every later one is appended, and the
// destructor closes what this animator opened. A host failing there ends the program, as a
// destructor must not throw.
class AnimatorToFile : public virtual AnimatorAbstract {
public:
    explicit AnimatorToFile(const std::vector<KeyFrame_s>& keyFrames);
    ~AnimatorToFile() override;

    // Adds the picture as it is set up now; frames land in the file in the order of the calls. The
    // first call throws KeyFrameError when an export is running already, when the export format is
    // not one of animations, and when the host refuses to start.
    void drawFrameAtIndex(unsigned long index) override;

    // Cancels the running export, which leaves the destructor nothing to finish.
    void cancelAnimation() override;

private:
    void startExport();

    bool m_isFirstFrame = true;
};

} // namespace corvane::corutiltools
