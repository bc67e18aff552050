// Solution time that moves with the flight.
#include "addon/engine/AnimatorTime.h"

#include "addon/model/Utilities.h"
#include "hostapi/CorHost.h"

#include <algorithm>

namespace corvane::corutiltools {

namespace {

struct TimeRange_s {
    double minimum;
    double maximum;
};

// Without enabled zones the range is the current time alone, so that every frame keeps it.
TimeRange_s solutionTimeRange() {
    const double current = CorUtilSolutionTimeGetCurrent();
    TimeRange_s range{current, current};
    GetSolutionTimeMinMax(range.minimum, range.maximum);
    return range;
}

} // namespace

AnimatorTime::AnimatorTime(const std::vector<KeyFrame_s>& keyFrames,
                           const TimeAnimationOptions_s& options, AnimatorAbstract* inner)
    : AnimatorAbstract(keyFrames, inner) {
    m_solutionTimes.reserve(numTotalFrames());
    calculateSolutionTimes(keyFrames, options);
}

AnimatorTime::~AnimatorTime() = default;

void AnimatorTime::drawFrameAtIndex(unsigned long index) {
    CorUtilSolutionTimeSetCurrent(m_solutionTimes.at(index));
}

void AnimatorTime::createInterpolatedTimes(double start, double end, unsigned long count,
                                           std::vector<double>& out) {
    out.clear();
    out.reserve(count);
    const double step = (end - start) / (static_cast<double>(count) - 1.0);
    for (unsigned long i = 0; i < count; ++i) {
        out.push_back(static_cast<double>(i) * step + start);
    }
}

void AnimatorTime::calculateSolutionTimes(const std::vector<KeyFrame_s>& keyFrames,
                                          const TimeAnimationOptions_s& options) {
    switch (options.operation) {
    case TimeAnimationOperation_Forward:
        calculatedSolutionTimesForward();
        break;
    case TimeAnimationOperation_Loop:
        calculatedSolutionTimesLoop(options.numCycles);
        break;
    case TimeAnimationOperation_Bounce:
        calculatedSolutionTimesBounce(options.numCycles);
        break;
    case TimeAnimationOperation_AsCaptured:
        calculateSolutionTimesAsCaptured(keyFrames);
        break;
    }
}

void AnimatorTime::calculatedSolutionTimesForward() {
    calculatedSolutionTimesLoop(1);
}

void AnimatorTime::calculatedSolutionTimesLoop(unsigned long cycles) {
    const unsigned long wanted = std::max(cycles, 1UL);
    const TimeRange_s range = solutionTimeRange();
    std::vector<double> cycle;
    createInterpolatedTimes(range.minimum, range.maximum, numTotalFrames() / wanted, cycle);
    repeatCycle(cycle, wanted, range.maximum);
}

void AnimatorTime::calculatedSolutionTimesBounce(unsigned long cycles) {
    const unsigned long wanted = std::max(cycles, 1UL);
    const TimeRange_s range = solutionTimeRange();
    std::vector<double> up;
    createInterpolatedTimes(range.minimum, range.maximum, numTotalFrames() / wanted / 2, up);
    // The turning values come twice in a row.
    std::vector<double> cycle(up);
    cycle.insert(cycle.end(), up.rbegin(), up.rend());
    // Every cycle ends at the minimum, and yet the frames left over jump to the maximum:
    // deliberate.
    repeatCycle(cycle, wanted, range.maximum);
}

void AnimatorTime::calculateSolutionTimesAsCaptured(const std::vector<KeyFrame_s>& keyFrames) {
    std::vector<unsigned long> counts;
    ExtractFrameCounts(keyFrames, counts);
    std::vector<double> times;
    ExtractSolutionTimes(keyFrames, times);
    std::vector<double> segment;
    for (std::size_t i = 1; i < times.size(); ++i) {
        createInterpolatedTimes(times[i - 1], times[i], counts[i - 1] + 1, segment);
        // The end of a segment is the start of the next one.
        m_solutionTimes.insert(m_solutionTimes.end(), segment.begin(), segment.end() - 1);
    }
    m_solutionTimes.push_back(times.back());
}

void AnimatorTime::repeatCycle(const std::vector<double>& cycle, unsigned long cycles,
                               double padding) {
    // More cycles than frames leave no frame to a cycle; without values there is nothing to repeat.
    for (unsigned long i = 0; i < cycles && !cycle.empty(); ++i) {
        m_solutionTimes.insert(m_solutionTimes.end(), cycle.begin(), cycle.end());
    }
    m_solutionTimes.resize(numTotalFrames(), padding);
}

} // namespace corvane::corutiltools
