// The list of views of a flight.
#include "addon/engine/AnimatorKeyFrame.h"

#include "addon/base/HostLock.h"
#include "addon/base/KeyFrameError.h"
#include "addon/engine/AnimatorStreams.h"
#include "addon/model/Utilities.h"
#include "tests/cases/FlightCases.h"
#include "tests/unit/addon/EngineTest.h"

#include <limits>
#include <stdexcept>

namespace corvane::test {
namespace {

using corutiltools::AnimatorKeyFrame;
using corutiltools::AnimatorStreams;
using corutiltools::GetTotalFrameCount;
using corutiltools::HostLock;
using corutiltools::KeyFrameError;
using corutiltools::View;

class AnimatorKeyFrameTest : public EngineTest {
protected:
    static std::string errorOf(const KeyFrames& keyFrames) {
        try {
            const AnimatorKeyFrame animator(keyFrames, nullptr);
        } catch (const KeyFrameError& error) {
            return error.what();
        }
        return "";
    }
};

class EveryFlightTest : public EngineTest, public testing::WithParamInterface<FlightCase> {
protected:
    const KeyFrames& keyFrames() { return GetParam().keyFrames; }
};

// The longest one is left to the test of drift, as it only repeats the shortest one's steps.
std::vector<FlightCase> playableFlights() {
    std::vector<FlightCase> flights = flightCases();
    std::erase_if(flights, [](const FlightCase& flight) {
        return flight.keyFrames.size() < 2 || flight.name == "HugeCount";
    });
    return flights;
}

INSTANTIATE_TEST_SUITE_P(Museum, EveryFlightTest, testing::ValuesIn(playableFlights()),
                         [](const auto& flight) { return flight.param.name; });

TEST_P(EveryFlightTest, hasAViewForEachFrameAndNoRoomForMore) {
    const AnimatorKeyFrame animator(keyFrames(), nullptr);
    EXPECT_EQ(animator.views().size(), GetTotalFrameCount(keyFrames()));
    EXPECT_EQ(animator.views().capacity(), animator.views().size());
}

TEST_P(EveryFlightTest, showsKeyFramesAsTheyWereStored) {
    const AnimatorKeyFrame animator(keyFrames(), nullptr);
    std::size_t index = 0;
    for (std::size_t i = 0; i + 1 < keyFrames().size(); ++i) {
        if (keyFrames()[i].frameCount > 0) {
            EXPECT_EQ(animator.views().at(index), keyFrames()[i].view) << i;
        }
        index += keyFrames()[i].frameCount;
    }
    EXPECT_EQ(animator.views().at(index), keyFrames().back().view);
    EXPECT_EQ(index + 1, animator.views().size());
}

TEST_P(EveryFlightTest, asksForSixTurnsAStepAndDrawsNothing) {
    // As the driver does: without a lock around it, the host would draw between the calls.
    const HostLock lock;
    const AnimatorKeyFrame animator(keyFrames(), nullptr);
    std::size_t steps = 0;
    for (std::size_t i = 0; i + 1 < keyFrames().size(); ++i) {
        steps += std::max(keyFrames()[i].frameCount, 1ul) - 1;
    }
    EXPECT_EQ(callsTo("CorUtilViewRotate3D").size(), 6 * steps);
    EXPECT_EQ(callsTo("CorUtilThreeDViewGetViewerPos").size(), 3 * steps);
    EXPECT_EQ(callsTo("CorUtilStatusCheckPercentDone").size(), steps);
    EXPECT_THAT(callsTo("CorUtilRedraw"), IsEmpty());
    EXPECT_EQ(host.renderer().renders(), 0u);
    EXPECT_EQ(host.session().locks().depth(), 1);
    EXPECT_EQ(host.session().drawing().suspensions(), 0);
}

TEST_P(EveryFlightTest, leavesPerspectiveAsItIs) {
    for (bool perspective : {true, false}) {
        view().perspective = perspective;
        const AnimatorKeyFrame animator(keyFrames(), nullptr);
        EXPECT_EQ(view().perspective, perspective);
    }
}

TEST_P(EveryFlightTest, isTheSameWithAndWithoutPerspective) {
    view().perspective = true;
    const AnimatorKeyFrame with(keyFrames(), nullptr);
    view().perspective = false;
    const AnimatorKeyFrame without(keyFrames(), nullptr);
    EXPECT_EQ(with.views(), without.views());
}

TEST_F(AnimatorKeyFrameTest, withOneFrameHasTheKeyViewsAloneAndMovesNothing) {
    const auto& keyFrames = flightCase("TwoKeysCountOne").keyFrames;
    const AnimatorKeyFrame animator(keyFrames, nullptr);
    EXPECT_THAT(animator.views(), ElementsAre(keyFrames[0].view, keyFrames[1].view));
    EXPECT_THAT(callNames(),
                ElementsAre("CorUtilStatusStartPercentDone", "CorUtilStatusFinishPercentDone"));
}

TEST_F(AnimatorKeyFrameTest, ignoresTheLastKeyFramesCount) {
    KeyFrames keyFrames = flightCase("Orbit").keyFrames;
    const std::vector<View> views = AnimatorKeyFrame(keyFrames, nullptr).views();
    keyFrames.back().frameCount = 7;
    EXPECT_EQ(AnimatorKeyFrame(keyFrames, nullptr).views(), views);
}

TEST_F(AnimatorKeyFrameTest, leavesOutASegmentWithoutFrames) {
    const auto& first = flightCase("ZeroCountFirst").keyFrames;
    EXPECT_THAT(AnimatorKeyFrame(first, nullptr).views(), ElementsAre(first[1].view));
    const auto& middle = flightCase("ZeroCountMiddle").keyFrames;
    const std::vector<View> views = AnimatorKeyFrame(middle, nullptr).views();
    ASSERT_EQ(views.size(), 4u);
    EXPECT_EQ(views[0], middle[0].view);
    EXPECT_EQ(views[3], middle[2].view);
}

TEST_F(AnimatorKeyFrameTest, tellsWhatItDoesAndHowFarItIs) {
    const AnimatorKeyFrame animator(keyFramesWithCounts({3, 2, 9}), nullptr);
    EXPECT_EQ(calls().front(), "CorUtilStatusStartPercentDone(\"Creating interpolated views.... "
                               "Press [Esc] or click [Stop] to cancel.\", TRUE, TRUE)");
    EXPECT_EQ(calls().back(), "CorUtilStatusFinishPercentDone()");
    // Six frames; the key views take no step.
    EXPECT_THAT(callsTo("CorUtilStatusCheckPercentDone"),
                ElementsAre("CorUtilStatusCheckPercentDone(16)",
                            "CorUtilStatusCheckPercentDone(33)",
                            "CorUtilStatusCheckPercentDone(50)"));
}

TEST_F(AnimatorKeyFrameTest, stopsAtOnceWhenTheUserWantsIt) {
    host.stopAtCheck(4);
    EXPECT_EQ(errorOf(flightCase("Orbit").keyFrames), "Animation canceled.");
    EXPECT_EQ(callsTo("CorUtilStatusCheckPercentDone").size(), 4u);
    EXPECT_TRUE(hostIsAtRest());
}

TEST_F(AnimatorKeyFrameTest, thatIsStoppedTakesTheChainWithIt) {
    frame().style.streamTiming.timeAnchor = 2.0;
    const auto& keyFrames = flightCase("Orbit").keyFrames;
    auto* inner = new AnimatorStreams(keyFrames, nullptr);
    inner->drawFrameAtIndex(0);
    host.stopAtCheck(1);
    EXPECT_THROW(AnimatorKeyFrame(keyFrames, inner), KeyFrameError);
    EXPECT_EQ(frame().style.streamTiming.timeAnchor, 2.0);
}

TEST_F(AnimatorKeyFrameTest, refusesFewerThanTwoViews) {
    const std::string message =
        "At least two keyFrame views must be established to perform an animation.";
    EXPECT_EQ(errorOf({}), message);
    EXPECT_EQ(errorOf(flightCase("OneKey").keyFrames), message);
    EXPECT_THAT(calls(), IsEmpty());
}

TEST_F(AnimatorKeyFrameTest, refusesFewerThanTwoViewsInABuildToo) {
    AnimatorKeyFrame animator(flightCase("TwoKeysCountOne").keyFrames, nullptr);
    EXPECT_THROW(animator.buildViewList({View()}, {1}), KeyFrameError);
    EXPECT_THROW(animator.buildViewList({}, {}), KeyFrameError);
}

TEST_F(AnimatorKeyFrameTest, buildReplacesTheList) {
    const auto& keyFrames = flightCase("TwoKeysCountOne").keyFrames;
    AnimatorKeyFrame animator(keyFrames, nullptr);
    animator.buildViewList({keyFrames[1].view, keyFrames[0].view}, {1, 1});
    EXPECT_THAT(animator.views(), ElementsAre(keyFrames[1].view, keyFrames[0].view));
}

TEST_F(AnimatorKeyFrameTest, refusesAListThatNoVectorCanHoldBeforeItMovesAnything) {
    const unsigned long largest = std::numeric_limits<unsigned long>::max();
    EXPECT_THROW(AnimatorKeyFrame(keyFramesWithCounts({largest, 1}), nullptr), std::length_error);
    EXPECT_THROW(AnimatorKeyFrame(keyFramesWithCounts({largest / 8, 1}), nullptr),
                 std::length_error);
    EXPECT_THAT(calls(), IsEmpty());
}

TEST_F(AnimatorKeyFrameTest, drawingAppliesTheViewAndNothingElse) {
    const auto& keyFrames = flightCase("Orbit").keyFrames;
    AnimatorKeyFrame animator(keyFrames, nullptr);
    host.clearCalls();
    animator.drawFrameAtIndex(30);
    const std::vector<std::string> drawn = calls();
    EXPECT_EQ(view().theta, keyFrames[1].view.theta());

    host.clearCalls();
    keyFrames[1].view.apply();
    EXPECT_EQ(drawn, calls());
}

TEST_F(AnimatorKeyFrameTest, drawsFramesInAnyOrderAndAgain) {
    AnimatorKeyFrame animator(flightCase("Orbit").keyFrames, nullptr);
    for (unsigned long index : {30ul, 3ul, 3ul, 29ul, 0ul}) {
        animator.drawFrameAtIndex(index);
        EXPECT_EQ(view().theta, animator.views()[index].theta()) << index;
    }
}

TEST_F(AnimatorKeyFrameTest, pastTheEndAppliesNothing) {
    AnimatorKeyFrame animator(flightCase("Orbit").keyFrames, nullptr);
    host.clearCalls();
    EXPECT_THROW(animator.drawFrameAtIndex(31), std::out_of_range);
    EXPECT_THAT(calls(), IsEmpty());
}

} // namespace
} // namespace corvane::test
