// Streamtrace markers and dashes that travel with the flight.
#include "addon/engine/AnimatorStreams.h"

#include "addon/base/KeyFrameError.h"
#include "tests/unit/addon/EngineTest.h"

#include <memory>

namespace corvane::test {
namespace {

using corutiltools::AnimatorStreams;
using corutiltools::KeyFrameError;

class AnimatorStreamsTest : public EngineTest {
protected:
    AnimatorStreamsTest() {
        timing().timeAnchor = 2.0;
        timing().deltaTime = 0.5;
    }

    host::StreamTimingStyle& timing() { return frame().style.streamTiming; }

    const KeyFrames keyFrames = keyFramesForFrames(10);
};

TEST_F(AnimatorStreamsTest, movesTheAnchorByAFifthOfTheDeltaTimeAndPutsItBack) {
    auto animator = std::make_unique<AnimatorStreams>(keyFrames, nullptr);
    EXPECT_EQ(timing().timeAnchor, 2.0);
    animator->drawFrameAtIndex(0);
    EXPECT_NEAR(timing().timeAnchor, 2.1, 1e-12);
    animator->drawFrameAtIndex(1);
    EXPECT_NEAR(timing().timeAnchor, 2.2, 1e-12);
    animator->drawFrameAtIndex(2);
    EXPECT_NEAR(timing().timeAnchor, 2.3, 1e-12);
    animator.reset();
    EXPECT_EQ(timing().timeAnchor, 2.0);
}

TEST_F(AnimatorStreamsTest, movesWithEveryCallWhateverTheFrame) {
    AnimatorStreams animator(keyFrames, nullptr);
    animator.drawFrameAtIndex(5);
    animator.drawFrameAtIndex(5);
    EXPECT_NEAR(timing().timeAnchor, 2.2, 1e-12);
    animator.drawFrameAtIndex(99);
    EXPECT_NEAR(timing().timeAnchor, 2.3, 1e-12);
}

TEST_F(AnimatorStreamsTest, writesNothingButTheAnchor) {
    AnimatorStreams animator(keyFrames, nullptr);
    host.clearCalls();
    animator.drawFrameAtIndex(0);
    ASSERT_EQ(calls().size(), 1u);
    EXPECT_THAT(calls().front(),
                testing::HasSubstr(R"("StreamAttributes","StreamTiming","TimeAnchor")"));
}

TEST_F(AnimatorStreamsTest, withoutReadableTimingStandsAtZero) {
    host.failNext("CorUtilStyleGet", 2);
    AnimatorStreams animator(keyFrames, nullptr);
    animator.drawFrameAtIndex(0);
    animator.drawFrameAtIndex(1);
    EXPECT_EQ(timing().timeAnchor, 0.0);
}

TEST_F(AnimatorStreamsTest, withoutReadableAnchorStartsFromZero) {
    host.failNext("CorUtilStyleGet");
    AnimatorStreams animator(keyFrames, nullptr);
    animator.drawFrameAtIndex(0);
    EXPECT_NEAR(timing().timeAnchor, 0.1, 1e-12);
}

TEST_F(AnimatorStreamsTest, refusesFewerThanTwoKeyFramesBeforeItReadsAnything) {
    EXPECT_THROW(AnimatorStreams(keyFramesWithCounts({5}), nullptr), KeyFrameError);
    EXPECT_THAT(calls(), IsEmpty());
}

TEST_F(AnimatorStreamsTest, thatCannotReadItsTimingTakesItsSuccessorWithIt) {
    auto* successor = new AnimatorStreams(keyFrames, nullptr);
    successor->drawFrameAtIndex(0);
    host.throwAt("CorUtilStyleGet", 1);
    EXPECT_THROW(AnimatorStreams(keyFrames, successor), std::runtime_error);
    EXPECT_EQ(timing().timeAnchor, 2.0);
}

} // namespace
} // namespace corvane::test
