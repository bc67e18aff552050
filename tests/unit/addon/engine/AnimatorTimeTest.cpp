// Solution time that moves with the flight.
#include "addon/engine/AnimatorTime.h"

#include "addon/base/KeyFrameError.h"
#include "tests/unit/addon/EngineTest.h"

#include <cmath>
#include <limits>
#include <stdexcept>

namespace corvane::test {
namespace {

using namespace corutiltools;
using testing::DoubleNear;
using testing::Pointwise;

std::vector<double> interpolated(double start, double end, unsigned long count) {
    std::vector<double> values{99.0};
    AnimatorTime::createInterpolatedTimes(start, end, count, values);
    return values;
}

TEST(InterpolatedTimes, includeBothEnds) {
    EXPECT_THAT(interpolated(0.0, 1.0, 5), ElementsAre(0.0, 0.25, 0.5, 0.75, 1.0));
    EXPECT_THAT(interpolated(3.0, 1.0, 3), ElementsAre(3.0, 2.0, 1.0));
    EXPECT_THAT(interpolated(2.0, 2.0, 2), ElementsAre(2.0, 2.0));
}

// There is no step between one value: deliberately left so.
TEST(InterpolatedTimes, ofOneValueAreNotANumber) {
    ASSERT_EQ(interpolated(0.0, 1.0, 1).size(), 1u);
    EXPECT_TRUE(std::isnan(interpolated(0.0, 1.0, 1).front()));
    EXPECT_TRUE(std::isnan(interpolated(2.0, 2.0, 1).front()));
}

TEST(InterpolatedTimes, ofNoValueAreEmpty) {
    EXPECT_THAT(interpolated(0.0, 1.0, 0), IsEmpty());
}

class AnimatorTimeTest : public EngineTest {
protected:
    AnimatorTimeTest() { setSolutionTimes({0.5, 0.0, 1.0}); }

    // The solution times of all frames in order. A time that is not a number is refused by the
    // host, and so taken from the call.
    std::vector<double> timesOf(const KeyFrames& keyFrames, TimeAnimationOperation_e operation,
                                unsigned long numCycles = 1) {
        AnimatorTime animator(keyFrames, {true, operation, numCycles}, nullptr);
        std::vector<double> times;
        for (unsigned long i = 0; i < animator.numTotalFrames(); ++i) {
            host.clearCalls();
            animator.drawFrameAtIndex(i);
            EXPECT_EQ(calls().size(), 1u);
            const bool isNumber = callsTo("CorUtilSolutionTimeSetCurrent(nan").empty() &&
                                  callsTo("CorUtilSolutionTimeSetCurrent(-nan").empty();
            times.push_back(isNumber ? frame().solutionTime
                                     : std::numeric_limits<double>::quiet_NaN());
        }
        return times;
    }

    std::vector<double> rising(unsigned long count) { return interpolated(0.0, 1.0, count); }
    std::vector<double> falling(unsigned long count) { return interpolated(1.0, 0.0, count); }
};

std::vector<double> joined(const std::vector<std::vector<double>>& parts) {
    std::vector<double> result;
    for (const std::vector<double>& part : parts) {
        result.insert(result.end(), part.begin(), part.end());
    }
    return result;
}

TEST_F(AnimatorTimeTest, forwardRunsOnceThroughTheRange) {
    EXPECT_THAT(timesOf(keyFramesForFrames(5), TimeAnimationOperation_Forward),
                ElementsAre(0.0, 0.25, 0.5, 0.75, 1.0));
}

TEST_F(AnimatorTimeTest, forwardKnowsNoCycles) {
    EXPECT_THAT(timesOf(keyFramesForFrames(5), TimeAnimationOperation_Forward, 2),
                ElementsAre(0.0, 0.25, 0.5, 0.75, 1.0));
}

TEST_F(AnimatorTimeTest, loopStartsEachCycleAtTheMinimumAndStaysAtTheMaximum) {
    EXPECT_THAT(timesOf(keyFramesForFrames(101), TimeAnimationOperation_Loop, 2),
                Pointwise(DoubleNear(1e-12), joined({rising(50), rising(50), {1.0}})));
}

TEST_F(AnimatorTimeTest, loopRunsNoMoreCyclesThanAskedForEvenIfAnotherOneWouldFit) {
    // 11 frames in 4 cycles: 2 frames each, and 3 left over.
    EXPECT_THAT(timesOf(keyFramesForFrames(11), TimeAnimationOperation_Loop, 4),
                ElementsAre(0, 1, 0, 1, 0, 1, 0, 1, 1, 1, 1));
}

TEST_F(AnimatorTimeTest, loopOfOneCycleIsForward) {
    EXPECT_EQ(timesOf(keyFramesForFrames(17), TimeAnimationOperation_Loop, 1),
              timesOf(keyFramesForFrames(17), TimeAnimationOperation_Forward));
}

TEST_F(AnimatorTimeTest, noCyclesCountAsOne) {
    EXPECT_THAT(timesOf(keyFramesForFrames(5), TimeAnimationOperation_Loop, 0),
                ElementsAre(0.0, 0.25, 0.5, 0.75, 1.0));
    EXPECT_THAT(timesOf(keyFramesForFrames(4), TimeAnimationOperation_Bounce, 0),
                ElementsAre(0.0, 1.0, 1.0, 0.0));
}

TEST_F(AnimatorTimeTest, loopWithACycleForEachFrameHasNoTimes) {
    for (double time : timesOf(keyFramesForFrames(4), TimeAnimationOperation_Loop, 4)) {
        EXPECT_TRUE(std::isnan(time));
    }
}

TEST_F(AnimatorTimeTest, moreCyclesThanFramesStayAtTheMaximum) {
    const unsigned long largest = std::numeric_limits<unsigned long>::max();
    EXPECT_THAT(timesOf(keyFramesForFrames(3), TimeAnimationOperation_Loop, 4),
                ElementsAre(1.0, 1.0, 1.0));
    EXPECT_THAT(timesOf(keyFramesForFrames(3), TimeAnimationOperation_Loop, largest),
                ElementsAre(1.0, 1.0, 1.0));
    EXPECT_THAT(timesOf(keyFramesForFrames(3), TimeAnimationOperation_Bounce, largest),
                ElementsAre(1.0, 1.0, 1.0));
}

// The turning values come twice, and the frame left over jumps from the minimum to the maximum:
// both deliberate.
TEST_F(AnimatorTimeTest, bounceRisesAndFallsAndEndsAtTheMaximum) {
    EXPECT_THAT(timesOf(keyFramesForFrames(101), TimeAnimationOperation_Bounce, 2),
                Pointwise(DoubleNear(1e-12),
                          joined({rising(25), falling(25), rising(25), falling(25), {1.0}})));
}

TEST_F(AnimatorTimeTest, bounceDropsTheHalfFrame) {
    // 7 frames in one cycle: 3 up, 3 down, and one left over.
    EXPECT_THAT(timesOf(keyFramesForFrames(7), TimeAnimationOperation_Bounce),
                ElementsAre(0.0, 0.5, 1.0, 1.0, 0.5, 0.0, 1.0));
}

TEST_F(AnimatorTimeTest, bounceWithOneFrameACycleStaysAtTheMaximum) {
    EXPECT_THAT(timesOf(keyFramesForFrames(3), TimeAnimationOperation_Bounce, 3),
                ElementsAre(1.0, 1.0, 1.0));
}

TEST_F(AnimatorTimeTest, asCapturedFollowsTheKeyFrames) {
    EXPECT_THAT(timesOf(keyFramesWithCounts({2, 7}), TimeAnimationOperation_AsCaptured),
                ElementsAre(0.0, 5.0, 10.0));
}

TEST_F(AnimatorTimeTest, asCapturedShowsEachKeyFramesOwnTime) {
    KeyFrames keyFrames = keyFramesWithCounts({4, 2, 1, 9});
    keyFrames[0].solutionTime = 1.0;
    keyFrames[1].solutionTime = 3.0;
    keyFrames[2].solutionTime = -1.0;
    keyFrames[3].solutionTime = 8.0;
    EXPECT_THAT(timesOf(keyFrames, TimeAnimationOperation_AsCaptured),
                ElementsAre(1.0, 1.5, 2.0, 2.5, 3.0, 1.0, -1.0, 8.0));
}

TEST_F(AnimatorTimeTest, asCapturedLeavesOutASegmentWithoutFrames) {
    EXPECT_THAT(timesOf(keyFramesWithCounts({0, 2, 5}), TimeAnimationOperation_AsCaptured),
                ElementsAre(10.0, 15.0, 20.0));
}

TEST_F(AnimatorTimeTest, asCapturedDoesNotAskForTheRange) {
    host.clearCalls();
    const AnimatorTime animator(keyFramesForFrames(5), {true, TimeAnimationOperation_AsCaptured, 1},
                                nullptr);
    EXPECT_THAT(calls(), IsEmpty());
}

TEST_F(AnimatorTimeTest, withoutEnabledZonesKeepsTheCurrentTime) {
    setSolutionTimes({});
    frame().solutionTime = 0.75;
    EXPECT_THAT(timesOf(keyFramesForFrames(3), TimeAnimationOperation_Forward),
                ElementsAre(0.75, 0.75, 0.75));
    EXPECT_THAT(timesOf(keyFramesForFrames(5), TimeAnimationOperation_Bounce),
                ElementsAre(0.75, 0.75, 0.75, 0.75, 0.75));
}

TEST_F(AnimatorTimeTest, pastTheEndSetsNoTime) {
    AnimatorTime animator(keyFramesForFrames(5), {true, TimeAnimationOperation_Forward, 1},
                          nullptr);
    host.clearCalls();
    EXPECT_THROW(animator.drawFrameAtIndex(5), std::out_of_range);
    EXPECT_THAT(calls(), IsEmpty());
}

TEST_F(AnimatorTimeTest, ofAnUnknownOperationHasNoTimes) {
    for (int code : {4, -1}) {
        AnimatorTime animator(keyFramesForFrames(5),
                              {true, static_cast<TimeAnimationOperation_e>(code), 1}, nullptr);
        EXPECT_THROW(animator.drawFrameAtIndex(0), std::out_of_range);
    }
}

TEST_F(AnimatorTimeTest, refusesFewerThanTwoKeyFrames) {
    EXPECT_THROW(
        AnimatorTime(keyFramesWithCounts({5}), {true, TimeAnimationOperation_Forward, 1}, nullptr),
        KeyFrameError);
}

TEST_F(AnimatorTimeTest, refusesAListThatNoVectorCanHold) {
    const unsigned long largest = std::numeric_limits<unsigned long>::max();
    EXPECT_THROW(AnimatorTime(keyFramesWithCounts({largest, 1}),
                              {true, TimeAnimationOperation_Forward, 1}, nullptr),
                 std::length_error);
}

} // namespace
} // namespace corvane::test
