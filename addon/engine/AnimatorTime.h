// Solution time that moves with the flight.
#pragma once

#include "addon/engine/AnimatorAbstract.h"

namespace corvane::corutiltools {

// Computes the solution time of every frame when it is made, and sets it as the frame is drawn. Its
// list covers all frames, except that an unknown operation gives none at all.
class AnimatorTime : public AnimatorAbstract {
public:
    AnimatorTime(const std::vector<KeyFrame_s>& keyFrames, const TimeAnimationOptions_s& options,
                 AnimatorAbstract* inner);
    ~AnimatorTime() override;

    // Sets the solution time of the frame. Throws std::out_of_range for a frame without time, and
    // sets nothing then.
    void drawFrameAtIndex(unsigned long index) override;

    // Replaces the output by evenly spaced values from start to end, both included. A single value
    // is not a number, as there is no step between one value; the callers live with it.
    static void createInterpolatedTimes(double start, double end, unsigned long count,
                                        std::vector<double>& out);

private:
    void calculateSolutionTimes(const std::vector<KeyFrame_s>& keyFrames,
                                const TimeAnimationOptions_s& options);
    void calculatedSolutionTimesForward();
    void calculatedSolutionTimesLoop(unsigned long cycles);
    void calculatedSolutionTimesBounce(unsigned long cycles);
    void calculateSolutionTimesAsCaptured(const std::vector<KeyFrame_s>& keyFrames);

    // Lists the cycle as often as given, and the padding for the frames that are left over.
    void repeatCycle(const std::vector<double>& cycle, unsigned long cycles, double padding);

    std::vector<double> m_solutionTimes;
};

} // namespace corvane::corutiltools
